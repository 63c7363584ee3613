#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include "forms/Color.h"
#include "forms/Font.h"

/// The model of dialogs: forms, their controls, and the loop that runs them. It doesn't depend on a GUI
/// toolkit. The members have the names of Visual Basic's forms. A control stores its state. Setting a
/// property raises the control's event, whether the page or the user sets it. A view only shows the state and
/// reports the actions of the user.
namespace plotsmith::forms {

class Form;

/// An event handler: a procedure of the page, or empty.
using Event = std::function<void()>;

/// The position and size of a control in points, relative to the corner of its container.
struct Place {
  /// The distances from the corner, and the extents.
  double Left = 0, Top = 0, Width = 0, Height = 0;
};

/// The base class of controls. A control belongs to one form for its whole life. It counts its changes, so
/// that a view knows when to redraw it.
class Control {
 public:
  /// Makes a control. `container` is the frame that contains it, or null for the form.
  Control(Form& form, const char* name, Control* container);
  virtual ~Control() = default;
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  /// The name. All members of a control array have the same name.
  const std::string& Name() const { return name_; }
  /// The index in a control array, counted from 0. It is absent if the control isn't in an array.
  std::optional<std::int32_t> Index() const { return index_; }
  /// The name with the index in the array, such as "optType(1)".
  std::string FullName() const;
  /// The name of the class, as Visual Basic's TypeName returns it.
  virtual const char* TypeName() const = 0;
  /// The frame that contains the control, or null if the form contains it.
  Control* Container() const { return container_; }
  /// The form of the control.
  Form& Parent() const { return form_; }

  /// Whether the user can use the control.
  ///@{
  bool Enabled() const { return enabled_; }
  void SetEnabled(bool value);
  ///@}
  /// Whether the control is shown.
  ///@{
  bool Visible() const { return visible_; }
  void SetVisible(bool value);
  ///@}

  /// The background colour.
  ///@{
  Color BackColor() const { return backColor_; }
  void SetBackColor(Color value);
  ///@}

  /// The font. Raises error 438 for a control without text, such as a picture.
  virtual forms::Font& Font();

  /// The position and size in points.
  ///@{
  const forms::Place& Place() const { return place_; }
  void SetPlace(const forms::Place& value);
  ///@}

  /// The name for screen readers. It is the text that was set, or the caption of the control, or the caption
  /// of its frame with the kind of control.
  ///@{
  std::string AccessibleName() const;
  void SetAccessibleName(std::string value);
  ///@}
  /// The description for screen readers: the accessible name of the control's frame, unless the control's own
  /// name begins with it.
  std::string AccessibleDescription() const;

  /// Moves the focus to this control. The control that had the focus raises Validate, and then this one
  /// raises GotFocus. Raises error 5 if the control is disabled or hidden or can't have the focus.
  void SetFocus();

  /// Raised when the control gets the focus.
  Event GotFocus;
  /// Raised when the focus moves from this control to another one.
  Event Validate;

  /// Returns the reason why the user can't use the control at present, as the end of a sentence ("is off"),
  /// or an empty text if the user can.
  std::string Obstacle() const;
  /// Handles a move of the focus by the user. Like all members that begin with User, it returns false and
  /// does nothing if the user can't use the control.
  bool UserFocus();

  /// A counter that increases with each change of a property.
  std::uint64_t Changes() const { return changes_; }

 protected:
  /// Counts a change of a property.
  void Changed() { ++changes_; }
  /// The text on the control, or empty.
  virtual std::string CaptionText() const { return {}; }
  /// The kind of control in plain words, for AccessibleName.
  virtual const char* KindText() const { return ""; }
  /// Returns true if controls of this class can have the focus.
  virtual bool TakesFocus() const { return true; }
  /// Gives the focus to the control before a user action. Returns false if the user can't use the control.
  bool Reach();
  /// Sets the index in a control array, counted from 0.
  void SetIndex(std::int32_t index) { index_ = index; }

  /// Calls an event handler unless it is empty.
  static void Raise(const Event& event) {
    if (event) event();
  }

 private:
  friend class Form;

  Form& form_;
  std::string name_;
  std::optional<std::int32_t> index_;
  Control* container_;
  bool enabled_ = true;
  bool visible_ = true;
  Color backColor_ = kButtonFace;
  forms::Place place_;
  std::string accessibleName_;
  std::uint64_t changes_ = 0;
};

/// A control with a font.
class FontControl : public Control {
 public:
  using Control::Control;
  forms::Font& Font() override { return font_; }

 private:
  forms::Font font_;
};

/// A control with a caption. "&" precedes the letter that selects the control together with Alt.
class CaptionControl : public FontControl {
 public:
  /// Makes a control with a caption. See Control for the other parameters.
  CaptionControl(Form& form, const char* name, Control* container, std::string caption)
      : FontControl(form, name, container), caption_(std::move(caption)) {}

  /// The caption, including "&".
  ///@{
  const std::string& Caption() const { return caption_; }
  void SetCaption(std::string value);
  ///@}

 protected:
  std::string CaptionText() const override { return caption_; }

 private:
  std::string caption_;
};

}  // namespace plotsmith::forms
