#include <functional>
#include <gtest/gtest.h>
#include <pthread.h>
#include <thread>

#include "forms/Timer.h"
#include "runtime/RuntimeError.h"
#include "tests/support/ErrorOf.h"
#include "tests/support/HandView.h"
#include "tests/support/SmallForm.h"

namespace plotsmith::forms {
namespace {

using S = std::string;
using Log = std::vector<S>;
using test::SmallForm;

struct Rule {
  const char* name;
  std::function<void(SmallForm&)> act;
  Log events;
};

Log EventsOf(const Rule& rule) {
  Log log;
  SmallForm form(log);
  rule.act(form);
  return log;
}

TEST(ModelTest, SettingAPropertyRaisesTheEventsOfAUserAction) {
  const Rule rules[] = {
      {"another entry", [](auto& form) { form.cboValues.SetListIndex(1); }, {"cboValues click"}},
      {"the same entry", [](auto& form) { form.cboValues.SetListIndex(-1); }, {}},
      {"no entry",
       [](auto& form) {
         form.lstOne.SetListIndex(0);
         form.lstOne.SetListIndex(-1);
       },
       {"lstOne click", "lstOne click"}},
      {"an entry that doesn't exist",
       [](auto& form) {
         EXPECT_EQ(test::ErrorOf([&] { form.cboValues.SetListIndex(3); }), 380);
         EXPECT_EQ(test::ErrorOf([&] { form.cboValues.SetListIndex(-2); }), 380);
         EXPECT_EQ(form.cboValues.ListIndex(), -1);
       },
       {}},
      {"an option",
       [](auto& form) {
         form.optOther0.SetValue(true);
         form.optType0.SetValue(true);
         EXPECT_FALSE(form.optType1.Value());
         EXPECT_TRUE(form.optOther0.Value()) << "it is in another container";
       },
       {"optOther(0) click", "optType(0) click"}},
      {"a disabled option", [](auto& form) { form.optType1.SetValue(false); }, {}},
      {"a box",
       [](auto& form) {
         form.chk3D.SetValue(CheckBox::kChecked);
         form.chk3D.SetValue(CheckBox::kChecked);
         form.chk3D.SetValue(CheckBox::kUnchecked);
       },
       {"chk3D click", "chk3D click"}},
      {"values of disabled controls",
       [](auto& form) {
         form.chk3D.SetEnabled(false);
         form.optType0.SetEnabled(false);
         form.chk3D.SetValue(CheckBox::kChecked);
         form.optType0.SetValue(true);
         EXPECT_EQ(form.chk3D.Value(), CheckBox::kChecked);
       },
       {"chk3D click", "optType(0) click"}},
      {"rows, entries and texts",
       [](auto& form) {
         form.grdRows.SetIsSelected(1, true);
         form.grdRows.Select(2, 0);
         form.lstMany.SetSelected(0, true);
         form.txtTitle.SetText("longer than five");
         form.cboFormat.SetText("0");
       },
       {}},
      {"entries of lists",
       [](auto& form) {
         form.lstOne.SetSelected(1, true);
         form.lstOne.SetSelected(0, false);
         EXPECT_EQ(form.lstOne.ListIndex(), 1) << "it wasn't the selected one";
         form.lstOne.SetSelected(0, true);
         EXPECT_EQ(form.lstOne.ListIndex(), 0);
         EXPECT_FALSE(form.lstOne.Selected(1));
         form.lstOne.AddItem("Last");
         EXPECT_EQ(form.lstOne.ListIndex(), 0) << "the entry is the same";
         EXPECT_TRUE(form.lstOne.Selected(0));
         EXPECT_FALSE(form.lstOne.Selected(2));
         form.lstOne.SetSelected(0, false);
         EXPECT_EQ(form.lstOne.ListIndex(), -1);
         EXPECT_EQ(form.lstOne.SelCount(), 0);
         EXPECT_EQ(test::ErrorOf([&] { form.lstOne.Selected(3); }), 380);
         EXPECT_EQ(test::ErrorOf([&] { form.lstOne.SetSelected(-1, true); }), 380);
         EXPECT_EQ(form.lstOne.List(2) + form.lstOne.List(-1) + form.lstOne.List(3), "Last");
       },
       {}},
      {"controls that can't have the focus",
       [](auto& form) {
         EXPECT_EQ(test::ErrorOf([&] { form.cmdOff.SetFocus(); }), 5);
         EXPECT_EQ(test::ErrorOf([&] { form.Frame1.SetFocus(); }), 5);
         EXPECT_EQ(test::ErrorOf([&] { form.imgPie.Font(); }), 438);
       },
       {}},
  };
  for (const Rule& rule : rules) EXPECT_EQ(EventsOf(rule), rule.events) << rule.name;
}

TEST(ModelTest, UserActionsMoveTheFocusAndRaiseEvents) {
  const Rule rules[] = {
      {"from control to control",
       [](auto& form) {
         form.txtTitle.UserFocus();
         form.txtNote.UserFocus();
         form.txtNote.UserFocus();
       },
       {"txtTitle got-focus", "txtTitle validate", "txtNote got-focus"}},
      {"a button", [](auto& form) { form.cmdOK.UserPress(); }, {"cmdOK got-focus", "cmdOK click"}},
      {"Enter finishes what was typed, and leaves the focus",
       [](auto& form) {
         form.txtTitle.UserFocus();
         EXPECT_TRUE(form.UserEnter());
         EXPECT_EQ(form.ActiveControl(), &form.txtTitle);
       },
       {"txtTitle got-focus", "txtTitle validate", "cmdOK click"}},
      {"Enter in a text of several lines",
       [](auto& form) {
         form.txtNote.UserType("a");
         EXPECT_TRUE(form.UserEnter());
         EXPECT_EQ(form.txtNote.Text(), "a\r\n");
       },
       {"txtNote got-focus"}},
      {"Enter without a button",
       [](auto& form) {
         form.cmdOK.SetEnabled(false);
         EXPECT_FALSE(form.UserEnter());
         form.cmdOK.SetEnabled(true);
         form.cmdOK.SetDefault(false);
         EXPECT_FALSE(form.UserEnter());
       },
       {}},
      {"Escape", [](auto& form) { form.UserEscape(); }, {}},
      {"the current entry again",
       [](auto& form) {
         form.cboValues.UserChoose(1);
         form.cboValues.UserChoose(1);
       },
       {"cboValues got-focus", "cboValues click", "cboValues click"}},
      {"two rows",
       [](auto& form) {
         form.grdRows.UserSelect({1, 3});
       },
       {"grdRows got-focus", "grdRows after-selection-change", "grdRows click"}},
      {"a double click",
       [](auto& form) { form.grdRows.UserDoubleClick(1); },
       {"grdRows got-focus", "grdRows after-selection-change", "grdRows click", "grdRows double-click"}},
      {"disabled or hidden controls",
       [](auto& form) {
         for (Control* control : form.Controls()) control->SetEnabled(false);
         form.txtTitle.SetEnabled(true);
         form.txtTitle.SetVisible(false);
         EXPECT_FALSE(form.txtTitle.UserType("a"));
         EXPECT_FALSE(form.cmdOK.UserPress());
         EXPECT_FALSE(form.UserEnter());
         EXPECT_FALSE(form.UserEscape());
         EXPECT_FALSE(form.chk3D.UserToggle(true));
         EXPECT_FALSE(form.optType0.UserChoose());
         EXPECT_FALSE(form.cboValues.UserChoose(0));
         EXPECT_FALSE(form.cboFormat.UserType("0"));
         EXPECT_FALSE(form.lstOne.UserSelect({0}));
         EXPECT_FALSE(form.grdRows.UserSelect({1}));
         EXPECT_FALSE(form.grdRows.UserDoubleClick(1));
       },
       {}},
      {"a text that is longer than its box allows",
       [](auto& form) {
         form.txtTitle.SetText("12345678");
         EXPECT_FALSE(form.txtTitle.UserType("123456789"));
         EXPECT_TRUE(form.txtTitle.UserType("1234567"));
         EXPECT_TRUE(form.txtTitle.UserType("12345678"));
         EXPECT_EQ(form.txtTitle.Limit(), 8u);
         form.txtTitle.SetText("1");
         EXPECT_EQ(form.txtTitle.Limit(), 5u);
       },
       {"txtTitle got-focus"}},
      {"controls that don't exist",
       [](auto& form) {
         EXPECT_FALSE(form.cboValues.UserChoose(3));
         EXPECT_FALSE(form.lstOne.UserSelect({0, 1}));
         EXPECT_FALSE(form.lstMany.UserSelect({3}));
         EXPECT_FALSE(form.grdRows.UserSelect({0}));
         EXPECT_FALSE(form.txtTitle.UserType("123456"));
         EXPECT_FALSE(form.cboValues.UserType("Cost"));
       },
       {}},
  };
  for (const Rule& rule : rules) EXPECT_EQ(EventsOf(rule), rule.events) << rule.name;
}

/// A view in which each yield checks a box on these forms, whether they are in front or not.
class TogglingView final : public test::HandView {
 public:
  void HandleEvents(EventQueue& queue) override {
    for (SmallForm* form : forms) queue.Post(*form, [form] { form->chk3D.UserToggle(true); });
  }
  std::vector<SmallForm*> forms;
};

void PressOK(Form& form) { dynamic_cast<SmallForm&>(form).cmdOK.UserPress(); }

class ModalLoopTest : public ::testing::Test {
 protected:
  std::shared_ptr<TogglingView> view_ = std::make_shared<TogglingView>();
  ModalLoop loop_{view_};
  Log log_;
  std::shared_ptr<SmallForm> form_ = std::make_shared<SmallForm>(log_);
};

TEST_F(ModalLoopTest, AShownFormIsLoadedActivatedAndHasTheFocus) {
  loop_.ShowModal(form_);
  EXPECT_EQ(log_, (Log{"load", "activate", "txtTitle got-focus", "unload"}));
  EXPECT_FALSE(form_->Visible());
  EXPECT_EQ(loop_.Front(), nullptr);
  log_.clear();
  form_->Unload();
  loop_.ShowModal(form_);
  EXPECT_EQ(log_, Log{}) << "a form is shown only once";
}

TEST_F(ModalLoopTest, TheSelectedOptionHasTheInitialFocus) {
  form_->txtTitle.SetEnabled(false);
  form_->txtNote.SetVisible(false);
  loop_.ShowModal(form_);
  EXPECT_EQ(log_[2], "optType(1) got-focus");
}

TEST_F(ModalLoopTest, AFormThatHidesItselfWhileItIsActivatedReturns) {
  form_->OnActivate = [&] { form_->Hide(); };
  loop_.ShowModal(form_);
  EXPECT_EQ(log_, (Log{"load", "activate", "deactivate"}));
}

TEST_F(ModalLoopTest, AFormMayBeReleasedInItsOwnEvent) {
  std::weak_ptr<SmallForm> first = form_;
  form_->OnOK = [&] {
    SmallForm& self = *form_;
    self.Unload();
    // The variable of the form gets the next instance, and nothing else refers to the first one.
    form_ = std::make_shared<SmallForm>(log_, "frmSecond");
    loop_.ShowModal(form_);
    EXPECT_FALSE(first.expired()) << "its event is still running";
  };
  view_->gestures = {[](Form& form) { form.UserEnter(); }, [](Form& form) { form.UserEscape(); }};
  loop_.ShowModal(form_);
  EXPECT_TRUE(first.expired());
  EXPECT_EQ(form_->Name(), "frmSecond");
  EXPECT_EQ(log_, (Log{"load", "activate", "txtTitle got-focus", "txtTitle validate", "cmdOK click", "unload",
                       "load", "activate", "txtTitle got-focus", "unload"}));
}

TEST_F(ModalLoopTest, AnErrorPassesThroughNestedForms) {
  const auto second = std::make_shared<SmallForm>(log_, "frmSecond");
  form_->OnOK = [&] {
    const int number = test::ErrorOf([&] { loop_.ShowModal(second); });
    log_.push_back("error " + std::to_string(number));
    EXPECT_EQ(loop_.Front(), form_.get());
    throw runtime::RuntimeError(91);
  };
  second->OnOK = [] { throw runtime::RuntimeError(9); };
  view_->gestures = {PressOK, PressOK};
  EXPECT_EQ(test::ErrorOf([&] { loop_.ShowModal(form_); }), 91);
  EXPECT_EQ(log_.back(), "error 9");
  EXPECT_FALSE(form_->Visible());
  EXPECT_FALSE(second->Visible());
  EXPECT_EQ(loop_.Front(), nullptr);
}

TEST_F(ModalLoopTest, AFormNestedInAnotherOneLeavesItAsItWas) {
  const auto second = std::make_shared<SmallForm>(log_, "frmSecond");
  form_->OnOK = [&] {
    loop_.ShowModal(second);
    log_.push_back("back");
  };
  view_->gestures = {PressOK, [](Form& form) { form.UserClose(); },
                     [this](Form&) { form_->chk3D.UserToggle(true); }};
  loop_.ShowModal(form_);
  EXPECT_EQ(log_, (Log{"load", "activate", "txtTitle got-focus", "txtTitle validate", "cmdOK got-focus",
                       "cmdOK click", "load", "activate", "txtTitle got-focus", "unload", "back",
                       "cmdOK validate", "chk3D got-focus", "chk3D click", "unload"}));
}

TEST_F(ModalLoopTest, GesturesOnAFormBelowAreDropped) {
  const auto second = std::make_shared<SmallForm>(log_, "frmSecond");
  second->OnActivate = [&] { loop_.DoEvents(); };
  form_->OnOK = [&] { loop_.ShowModal(second); };
  view_->forms = {form_.get(), second.get()};
  view_->gestures = {PressOK};
  loop_.ShowModal(form_);
  EXPECT_EQ(form_->chk3D.Value(), CheckBox::kUnchecked);
  EXPECT_EQ(second->chk3D.Value(), CheckBox::kChecked);
}

/// Calls a function on a thread with a stack of this size in bytes.
void CallWithStackOf(std::size_t size, std::function<void()> function) {
  pthread_attr_t attributes;
  pthread_attr_init(&attributes);
  ASSERT_EQ(pthread_attr_setstacksize(&attributes, size), 0);
  pthread_t thread;
  const auto call = [](void* called) -> void* {
    (*static_cast<std::function<void()>*>(called))();
    return nullptr;
  };
  ASSERT_EQ(pthread_create(&thread, &attributes, call, &function), 0);
  pthread_join(thread, nullptr);
  pthread_attr_destroy(&attributes);
}

TEST_F(ModalLoopTest, FormsNestAsLongAsTheStackLasts) {
  int forms = 0;
  std::vector<int> errors;
  std::function<void()> show = [&] {
    ++forms;
    const auto form = std::make_shared<SmallForm>(log_);
    form->OnOK = [&, self = form.get()] {
      self->Unload();
      show();
    };
    view_->gestures = {PressOK};
    if (const int error = test::ErrorOf([&] { loop_.ShowModal(form); })) errors.push_back(error);
  };
  CallWithStackOf(ModalLoop::kStackOfForm + std::size_t{128} * 1024, show);
  EXPECT_EQ(errors, std::vector<int>{28});
  EXPECT_GT(forms, 5);
  EXPECT_LT(forms, static_cast<int>(ModalLoop::kMostForms));
  EXPECT_EQ(loop_.Front(), nullptr);
}

/// A form with a timer that ticks twice during the form's work, and closes the form at the second tick after
/// that.
class TickingForm : public Form {
 public:
  explicit TickingForm(ModalLoop& loop) : Form("frmTicking"), loop_(loop) {
    Timer1.SetInterval(20);
    Timer1.Tick = [this] {
      if (++ticks == 4) Hide();
    };
  }
  Timer Timer1{*this, "Timer1", false};
  int ticks = 0;
  int ticksInActivate = 0;

 protected:
  void Form_Activate() override {
    Timer1.SetEnabled(true);
    loop_.DoEvents();
    EXPECT_EQ(ticks, 0) << "the interval hasn't ended";
    for (; ticks < 2; std::this_thread::sleep_for(std::chrono::milliseconds(1))) loop_.DoEvents();
    ticksInActivate = ticks;
  }

 private:
  ModalLoop& loop_;
};

TEST_F(ModalLoopTest, TimersTickWhileEventsAreHandledAndWhileTheLoopWaits) {
  class Idle final : public View {
    void Open(Form&) override {}
    void Close(Form&) override {}
    void Wait(EventQueue&, std::optional<std::chrono::milliseconds> atMost) override {
      std::this_thread::sleep_for(atMost.value());
    }
    void HandleEvents(EventQueue&) override {}
  };
  ModalLoop loop(std::make_shared<Idle>());
  const auto form = std::make_shared<TickingForm>(loop);
  loop.ShowModal(form);
  EXPECT_EQ(form->ticksInActivate, 2);
  EXPECT_EQ(form->ticks, 4);
}

}  // namespace
}  // namespace plotsmith::forms
