// Outlets: what the window shows, without a window. A label, a button or a gauge is a small object
// with a value; the window draws it and is told of every change, a test reads it.
//
// All of this belongs to the user-interface thread (asserted); a worker changes it by posting.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace velk {

/// True on the thread that owns the outlets: the one that made the Desktop. Before there is a
/// Desktop every thread counts as it.
bool on_ui_thread();
/// Makes the calling thread the owner of the outlets.
void this_is_the_ui_thread();

class Outlet {
  public:
    /// Called on every change, also when the new value equals the old one.
    using Observer = std::function<void(const Outlet&)>;

    /// `name` is the object name under which the window and its tests find the control.
    explicit Outlet(std::string name) : name_(std::move(name)) {}
    virtual ~Outlet() = default;
    Outlet(const Outlet&) = delete;
    Outlet& operator=(const Outlet&) = delete;

    const std::string& name() const { return name_; }
    bool hidden() const { return hidden_; }
    void set_hidden(bool hidden) { change(hidden_, hidden, "hidden"); }

    /// Which value was set last: "text", "hidden" ... For observers, since a value may be set to
    /// what it was.
    const std::string& last_change() const { return last_change_; }

    /// What is observed, as long as it is kept; it may outlive the outlet.
    using Observation = std::shared_ptr<const Observer>;
    [[nodiscard]] Observation observe(Observer observer);

  protected:
    void changed(const char* what = "value");
    template <class Value>
    void change(Value& field, Value value, const char* what = "value") {
        field = std::move(value);
        changed(what);
    }

  private:
    std::string name_;
    bool hidden_ = false;
    std::string last_change_;
    std::vector<std::weak_ptr<const Observer>> observers_;
};

/// A text: a status line, a value, a caption. UTF-8, or whatever bytes the phone sent.
class Label : public Outlet {
  public:
    using Outlet::Outlet;
    const std::string& text() const { return text_; }
    void set_text(std::string text) { change(text_, std::move(text), "text"); }
    const std::string& tool_tip() const { return tool_tip_; }
    void set_tool_tip(std::string text) { change(tool_tip_, std::move(text), "tool tip"); }

  private:
    std::string text_;
    std::string tool_tip_;
};

struct Colour {
    unsigned char red = 0, green = 0, blue = 0;
    bool operator==(const Colour&) const = default;
};
inline constexpr Colour white{255, 255, 255};

/// A button whose title and title colour the program changes while it runs.
class Button : public Outlet {
  public:
    using Outlet::Outlet;
    const std::string& title() const { return title_; }
    /// A new title comes in the window's own colour, until it is coloured again.
    void set_title(std::string title) {
        coloured_ = false;
        change(title_, std::move(title), "title");
    }
    bool coloured() const { return coloured_; }
    Colour colour() const { return colour_; }
    void set_colour(Colour colour) {
        coloured_ = true;
        change(colour_, colour, "colour");
    }
    bool centred() const { return centred_; }
    void set_centred(bool centred) { change(centred_, centred, "centred"); }

  private:
    std::string title_;
    Colour colour_;
    bool coloured_ = false;
    bool centred_ = false;
};

/// A gauge from 0 to its maximum. A value below 0 is drawn empty.
class Level_Indicator : public Outlet {
  public:
    Level_Indicator(std::string name, int maximum) : Outlet(std::move(name)), maximum_(maximum) {}
    int maximum() const { return maximum_; }
    int value() const { return value_; }
    void set_value(int value) { change(value_, value); }

  private:
    int maximum_;
    int value_ = 0;
};

/// A picture, named by its file in the program's resources.
class Image : public Outlet {
  public:
    using Outlet::Outlet;
    const std::string& picture() const { return picture_; }
    void set_picture(std::string file) { change(picture_, std::move(file), "picture"); }

  private:
    std::string picture_;
};

/// An input that a person types into.
class Text_Field : public Outlet {
  public:
    using Outlet::Outlet;
    const std::string& text() const { return text_; }
    void set_text(std::string text) { change(text_, std::move(text), "text"); }

    /// For the window: the person has typed this.
    void type(std::string text) {
        text_ = std::move(text);
        if (typed_) typed_();
    }
    /// Called after every change by typing, not after one by the program.
    void on_typed(std::function<void()> handler) { typed_ = std::move(handler); }

  private:
    std::string text_;
    std::function<void()> typed_;
};

}  // namespace velk
