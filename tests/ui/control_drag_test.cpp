// What a control hears of a drag, whatever becomes of it meanwhile.
#include <gtest/gtest.h>

#include "tests/support/scratch_machine.h"
#include "ui/form.h"
#include "ui/list_view.h"

namespace burrowmark::test {
namespace {

class DropForm : public Form {
 public:
  explicit DropForm(WindowSystem& windows) : Form(windows, L"frmDrop", Size{3000, 3000}) {
    list.SetOLEDrop(true);
    list.OLEDragOver = [this](const DragEvent&, DragState state, std::uint32_t& effect) {
      heard += state == DragState::kEnter ? "enter " : state == DragState::kLeave ? "leave " : "over ";
      effect = kEffectCopy | kEffectMove;
    };
    list.OLEDragDrop = [this](const DragEvent&, const std::vector<std::wstring>&, std::uint32_t& effect) {
      heard += "drop ";
      effect = kEffectCopy;
    };
  }

  std::string heard;
  ListView list{*this, L"list", Box{0, 0, 3000, 3000}};
};

TEST(ControlDrag, EachThatEnteredLeavesOrIsDroppedAndNoneReachesWhatTheUserCannot) {
  ScratchMachine scratch;
  DropForm form(scratch.app.platform.windows);
  form.Show(Modeless);
  DragEvent event;
  event.allowed = kEffectCopy;
  const auto over = [&](DragState state) { return form.list.UserDragOver(event, state); };
  EXPECT_EQ(over(DragState::kEnter), kEffectCopy);  // no more than its source puts up with
  form.list.SetEnabled(false);
  EXPECT_EQ(over(DragState::kOver), kEffectNone);
  EXPECT_EQ(over(DragState::kLeave), kEffectNone);
  EXPECT_EQ(form.list.UserDragDrop(event, {}), kEffectNone);
  form.list.SetEnabled(true);
  EXPECT_EQ(over(DragState::kOver), kEffectCopy);
  EXPECT_EQ(form.list.UserDragDrop(event, {}), kEffectCopy);
  EXPECT_EQ(over(DragState::kLeave), kEffectNone);
  EXPECT_EQ(over(DragState::kEnter), kEffectCopy);
  form.list.SetVisible(false);
  form.list.UserDragDrop(event, {});
  EXPECT_EQ(form.heard, "enter leave enter drop enter leave ");
}

}  // namespace
}  // namespace burrowmark::test
