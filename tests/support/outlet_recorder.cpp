#include "support/outlet_recorder.h"

#include <utility>

#include "base/text.h"

namespace velk {

void Outlet_Recorder::watch(Outlet& outlet, std::function<std::string()> describe) {
    watched_.push_back(
        outlet.observe([this, describe = std::move(describe)](const Outlet& changed) {
            const bool visibility = changed.last_change() == "hidden";
            note(changed.name() +
                 (visibility ? (changed.hidden() ? " hidden" : " shown") : describe()));
        }));
}

void Outlet_Recorder::watch(Label& label) {
    watch(label, [&label] {
        return label.last_change() == "tool tip" ? " tool tip: " + label.tool_tip()
                                                 : ": " + label.text();
    });
}

void Outlet_Recorder::watch(Button& button) {
    watch(button, [&button]() -> std::string {
        const Colour colour = button.colour();
        if (button.last_change() == "colour")
            return format(" colour: %d %d %d", colour.red, colour.green, colour.blue);
        return ": " + button.title();
    });
}

void Outlet_Recorder::watch(Level_Indicator& gauge) {
    watch(gauge, [&gauge] { return ": " + std::to_string(gauge.value()); });
}

void Outlet_Recorder::watch(Table& table) {
    watch(table, [&table, reloads = table.reloads(), scrolls = table.scrolls()]() mutable {
        const std::string rows = ": " + std::to_string(table.rows().count()) + " rows";
        if (std::exchange(reloads, table.reloads()) != table.reloads()) return " reloaded" + rows;
        if (std::exchange(scrolls, table.scrolls()) != table.scrolls())
            return std::string(" scrolled");
        return rows;
    });
}

std::vector<std::string> Outlet_Recorder::lines_of(const std::string& name) const {
    std::vector<std::string> found;
    for (const std::string& line : lines_)
        if (line.starts_with(name)) found.push_back(line);
    return found;
}

}  // namespace velk
