// What people who don't see the screen, or don't use the mouse, need of every form.
#include <algorithm>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "platform/characters.h"
#include "tests/contract/form_kinds.h"
#include "tests/contract/system_under_test.h"
#include "ui/accessible_name.h"
#include "ui/command_button.h"
#include "ui/label.h"
#include "ui/option_button.h"
#include "ui/picture_box.h"
#include "ui/tab_strip.h"
#include "ui/text_box.h"
#include "ui/toolbar.h"

namespace burrowmark {
namespace {

using Texts = std::vector<std::string>;

bool IsOption(const Control& control) { return dynamic_cast<const OptionButton*>(&control) != nullptr; }

// Its tabs have names; it needs none itself.
bool IsStrip(const Control& control) { return dynamic_cast<const TabStrip*>(&control) != nullptr; }

Texts WithoutName(const Form& form) {
  Texts found;
  for (const Control* control : form.Controls()) {
    const bool needs = (control->TabStop() && !IsStrip(*control)) || IsOption(*control);
    if (needs && AccessibleName(*control).empty()) found.push_back(ToUtf8(control->Name()));
    if (const auto* bar = dynamic_cast<const Toolbar*>(control)) {
      for (const ToolbarButtonState& button : bar->Buttons()) {
        const bool named = !button.caption.empty() || !button.toolTip.empty();
        if (!named && button.style != ToolbarButtonStyle::kSeparator) found.push_back(ToUtf8(button.key));
      }
    }
  }
  return found;
}

bool Overlap(const Box& one, const Box& other) {
  return one.left < other.left + other.width && other.left < one.left + one.width &&
         one.top < other.top + other.height && other.top < one.top + one.height;
}

// What a control is in, from the form down to itself.
std::vector<const Control*> WayTo(const Form& form, const Control& control) {
  std::vector<const Control*> way{&control};
  for (const Control* holder : form.Controls()) {
    const auto* parent = dynamic_cast<const ControlParent*>(holder);
    if (parent == &control.Parent()) {
      way = WayTo(form, *holder);
      way.push_back(&control);
    }
  }
  return way;
}

// They are on pages that lie over one another, of which one shows.
bool NeverTogether(const Form& form, const Control& one, const Control& other) {
  for (const Control* page : WayTo(form, one)) {
    for (const Control* otherPage : WayTo(form, other)) {
      const bool pages = page != otherPage && dynamic_cast<const PictureBox*>(page) != nullptr &&
                         dynamic_cast<const PictureBox*>(otherPage) != nullptr;
      if (pages && &page->Parent() == &otherPage->Parent() && Overlap(page->Place(), otherPage->Place())) return true;
    }
  }
  return false;
}

Texts MnemonicsUsedTwice(const Form& form) {
  Texts found;
  const std::vector<Control*>& controls = form.Controls();
  for (auto one = controls.begin(); one != controls.end(); ++one) {
    for (auto other = one + 1; other != controls.end() && MnemonicOf(**one) != L'\0'; ++other) {
      if (MnemonicOf(**one) != MnemonicOf(**other) || NeverTogether(form, **one, **other)) continue;
      found.push_back(ToUtf8((*one)->Name()) + " and " + ToUtf8((*other)->Name()));
    }
  }
  return found;
}

bool StandsBefore(const Box& one, const Box& other) {
  if (one.top + one.height <= other.top) return true;
  const bool sameRow = one.top < other.top + other.height && other.top < one.top + one.height;
  return sameRow && one.left + one.width <= other.left;
}

// From top to bottom and from left to right in the form and in each control that holds others. It may begin anywhere,
// as the first control has the focus when the form opens.
Texts JumpsOfTheTabKey(const Form& form) {
  std::map<const ControlParent*, std::vector<const Control*>> stops;
  for (const Control* control : form.Controls()) {
    if (!control->TabStop()) continue;
    for (const Control* step : WayTo(form, *control)) {
      auto& within = stops[&step->Parent()];
      if (std::find(within.begin(), within.end(), step) == within.end()) within.push_back(step);
    }
  }
  Texts found;
  for (const auto& [parent, order] : stops) {
    Texts back;
    for (std::size_t i = 0; i < order.size(); ++i) {
      const Control& next = *order[(i + 1) % order.size()];
      if (StandsBefore(next.Place(), order[i]->Place())) {
        back.push_back(ToUtf8(order[i]->Name()) + " to " + ToUtf8(next.Name()));
      }
    }
    if (back.size() > 1) found.insert(found.end(), back.begin(), back.end());
  }
  return found;
}

class NamesContract : public ContractTest {
 protected:
  Application app_{platform_};
};

TEST_F(NamesContract, EveryFormCanBeHeardAndUsedByKeys) {
  for (const FormKind& kind : FormKinds()) {
    SCOPED_TRACE(kind.name);
    const std::unique_ptr<Form> form = kind.make(app_);
    form->Show();
    EXPECT_EQ(WithoutName(*form), Texts());
    EXPECT_EQ(MnemonicsUsedTwice(*form), Texts());
    EXPECT_EQ(JumpsOfTheTabKey(*form), Texts());
    form->Unload();
  }
}

class MuteForm final : public Form {
 public:
  explicit MuteForm(WindowSystem& windows) : Form(windows, L"frmMute", Size{6000, 3000}) {}

  CommandButton cmdRight{*this, L"cmdRight", Box{3000, 150, 1215, 375}, L"&Right && Wrong"};
  TextBox txtNameless{*this, L"txtNameless", Box{150, 150, 1500, 315}};
  Label lblCalled{*this, L"Called"};
  TextBox txtCalled{*this, L"txtCalled", Box{150, 1050, 1500, 315}};
  PictureBox picPage{*this, L"picPage", Box{150, 1500, 3000, 900}};
  Label lblOne{picPage, L"lblOne", Box{150, 150, 900, 255}, L"&One"};
  PictureBox picOther{*this, L"picOther", Box{150, 1500, 3000, 900}};
  Label lblOther{picOther, L"lblOther", Box{150, 150, 900, 255}, L"&Other and &Rest"};
  CommandButton cmdAgain{picOther, L"cmdAgain", Box{150, 450, 1215, 375}, L"Ag&ain"};
  CommandButton cmdTop{*this, L"cmdTop", Box{4500, 600, 1215, 375}, L"&right"};
};

TEST_F(NamesContract, WhatAFormLacksIsFound) {
  const MuteForm form(platform_.windows);
  EXPECT_EQ(AccessibleName(form.cmdRight), L"Right & Wrong");
  EXPECT_EQ(AccessibleName(form.txtCalled), L"Called");
  EXPECT_EQ(WithoutName(form), Texts({"txtNameless"}));
  EXPECT_EQ(MnemonicsUsedTwice(form), Texts({"cmdRight and cmdTop"})) << "not those of two pages";
  EXPECT_EQ(JumpsOfTheTabKey(form), Texts({"cmdRight to txtNameless", "picOther to cmdTop", "cmdTop to cmdRight"}));
}

}  // namespace
}  // namespace burrowmark
