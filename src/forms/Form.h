#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "forms/Control.h"
#include "forms/Layout.h"

namespace plotsmith::forms {

/// A dialog. A form is loaded, shown and unloaded once; to show it again, make a new one. Its event handlers
/// are the members that begin with Form_.
class Form {
 public:
  /// Makes a form. `name` is the name of the form in the code, such as "frmPSLayoutABC".
  explicit Form(const char* name);
  virtual ~Form() = default;
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;

  /// The name of the form in the code.
  const std::string& Name() const { return name_; }
  /// An id that is unique among all forms of the program, including destroyed ones.
  std::uint64_t Id() const { return id_; }

  /// The title of the window.
  ///@{
  const std::string& Caption() const { return caption_; }
  void SetCaption(std::string value);
  ///@}

  /// Whether the form is shown.
  bool Visible() const { return visible_; }
  /// The handle of the window, which the view sets; 0 if there is no window.
  std::intptr_t hWnd = 0;
  /// The font of the form.
  forms::Font& Font() { return font_; }

  /// The controls in tab order.
  const std::vector<Control*>& Controls() const { return controls_; }
  /// Returns a control by its full name ("optType(1)"), or null if there is none.
  Control* FindControl(std::string_view fullName) const;
  /// The layout of the controls. By default the controls are one below the other.
  virtual forms::Layout Layout() const;
  /// The control with the focus, or null if none has it.
  Control* ActiveControl() const { return activeControl_; }

  /// Loads the form. The first call raises Form_Load.
  void Load();
  /// Unloads the form, which hides it for good. The first call raises Form_Unload.
  void Unload();
  /// Hides the form. This ends its modal show.
  void Hide();
  /// Whether the form was unloaded.
  bool IsUnloaded() const { return unloaded_; }

  /// Handles the closing of the window by the user.
  void UserClose() { Unload(); }
  /// Handles the Enter key. A multi-line text box processes the key itself; otherwise the default button is
  /// pressed and the focus doesn't move. The control with the focus raises Validate first, so that typed text
  /// isn't lost. Returns false if there is no such button or it can't be pressed.
  bool UserEnter();
  /// Handles the Escape key: presses the cancel button without moving the focus.
  bool UserEscape();
  /// Handles the F1 key: presses the button cmdHelp without moving the focus.
  bool UserHelp();

  /// A counter that increases with each change of the form's own properties.
  std::uint64_t Changes() const { return changes_; }

 protected:
  /// The event handlers of the form. They do nothing by default.
  ///@{
  virtual void Form_Load() {}
  virtual void Form_Activate() {}
  virtual void Form_Deactivate() {}
  virtual void Form_Unload() {}
  ///@}

 private:
  friend class Control;
  friend class ModalLoop;

  /// Shows the form. If its event doesn't set the focus, the first control in tab order that can have the
  /// focus gets it.
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
