#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "forms/Control.h"
#include "forms/Layout.h"

namespace plotsmith::forms {

/// A dialog. A form lives once: it is loaded, shown, and unloaded; to show it again means to make a new one.
/// Its events are the members that begin with Form_.
class Form {
 public:
  /// `name` is the name of the form in the code: "frmPSLayoutABC".
  explicit Form(const char* name);
  virtual ~Form() = default;
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;

  const std::string& Name() const { return name_; }
  /// Differs for all forms of a program, those that are gone included.
  std::uint64_t Id() const { return id_; }

  const std::string& Caption() const { return caption_; }
  void SetCaption(std::string value);
  /// Whether the form is on the screen.
  bool Visible() const { return visible_; }
  /// The window's handle, for those who draw the form; 0 where there is no window.
  std::intptr_t hWnd = 0;
  forms::Font& Font() { return font_; }

  /// In tab order.
  const std::vector<Control*>& Controls() const { return controls_; }
  /// By its full name ("optType(1)"); null if there is none.
  Control* FindControl(std::string_view fullName) const;
  /// How the controls lie. Without a layout of its own a form has them one below the other.
  virtual forms::Layout Layout() const;
  /// The control that has the focus; null while none has.
  Control* ActiveControl() const { return activeControl_; }

  /// Raises Form_Load, at the first call only.
  void Load();
  /// Raises Form_Unload, at the first call only, and takes the form off the screen for good.
  void Unload();
  /// Takes the form off the screen. That ends its modal show.
  void Hide();
  bool IsUnloaded() const { return unloaded_; }

  /// A hand closes the window.
  void UserClose() { Unload(); }
  /// A hand presses Enter: a text of several lines takes it for itself, else it presses the default button
  /// without moving the focus. The control of the focus raises Validate first, so that a text that is being
  /// typed isn't lost. False if there is no such button, or it can't be pressed.
  bool UserEnter();
  /// A hand presses Escape: the cancel button is pressed, and the focus stays.
  bool UserEscape();
  /// A hand presses F1: the button cmdHelp is pressed, and the focus stays.
  bool UserHelp();

  /// Grows with each change of the form's own properties.
  std::uint64_t Changes() const { return changes_; }

 protected:
  virtual void Form_Load() {}
  virtual void Form_Activate() {}
  virtual void Form_Deactivate() {}
  virtual void Form_Unload() {}

 private:
  friend class Control;
  friend class ModalLoop;

  /// The form comes to the screen. Where its event leaves the focus nowhere, the first control in tab order
  /// that can have it gets it.
  void Activate();
  void Deactivate() { Form_Deactivate(); }
  void MoveFocus(Control& control);
  Control* FirstInTabOrder() const;

  std::string name_;
  std::uint64_t id_;
  std::string caption_;
  bool loaded_ = false;
  bool visible_ = false;
  bool unloaded_ = false;
  forms::Font font_;
  std::vector<Control*> controls_;
  Control* activeControl_ = nullptr;
  std::uint64_t changes_ = 0;
};

}  // namespace plotsmith::forms
