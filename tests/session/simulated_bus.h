// A USB bus that only this process sees; it must run under umockdev-wrapper.
#pragma once

#include <gtest/gtest.h>
#include <umockdev.h>

#include <memory>
#include <string>

namespace velk {

class Simulated_Bus {
  public:
    struct Plugged {
        const char* port = "1-1";
        const char* product = "Moss Phone";
        const char* vendor_id = "04e8";
        const char* product_id = "6860";
    };

    Simulated_Bus() { EXPECT_TRUE(umockdev_in_mock_environment()) << "see umockdev-wrapper"; }

    /// Puts a device on the bus, which is announced; gives its place in the device tree.
    std::string plug(const Plugged& device) {
        const std::string number = std::to_string(++number_);
        const std::string node = "bus/usb/001/" + number;
        gchar* const path = umockdev_testbed_add_device(
            bed_.get(), "usb", device.port, nullptr, "idVendor", device.vendor_id, "idProduct",
            device.product_id, "product", device.product, nullptr, "DEVTYPE", "usb_device",
            "DEVNAME", node.c_str(), "MAJOR", "189", "MINOR", number.c_str(), nullptr);
        std::string place = path;
        g_free(path);
        return place;
    }
    /// An interface, numbered as "ff4201" is.
    void add_interface(const std::string& place, const std::string& numbers, const char* name) {
        const std::string port = place.substr(place.rfind('/') + 1) + ":1." + numbers;
        g_free(umockdev_testbed_add_device(
            bed_.get(), "usb", port.c_str(), place.c_str(), "bInterfaceClass",
            numbers.substr(0, 2).c_str(), "bInterfaceSubClass", numbers.substr(2, 2).c_str(),
            "bInterfaceProtocol", numbers.substr(4).c_str(), "interface", name, nullptr, "DEVTYPE",
            "usb_interface", nullptr));
    }
    void unplug(const std::string& place) {
        say(place, "remove");
        umockdev_testbed_remove_device(bed_.get(), place.c_str());
    }
    /// Another device stands at this place, and nobody has said so.
    void replace(const std::string& place) {
        umockdev_testbed_set_property_int(bed_.get(), place.c_str(), "MINOR", ++number_);
    }
    void say(const std::string& place, const char* action) {
        umockdev_testbed_uevent(bed_.get(), place.c_str(), action);
    }

  private:
    struct Release {
        void operator()(UMockdevTestbed* bed) const { g_object_unref(bed); }
    };
    std::unique_ptr<UMockdevTestbed, Release> bed_{umockdev_testbed_new()};
    int number_ = 0;
};

}  // namespace velk
