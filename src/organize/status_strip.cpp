#include "organize/status_strip.h"

#include "core/numbers.h"

namespace burrowmark {
namespace {

constexpr std::size_t kCountPanel = 1;
constexpr std::size_t kTypePanel = 2;
constexpr std::size_t kDetailPanel = 3;
constexpr std::int32_t kStripIcon = 16;  // pixels at 96 dots per inch

std::vector<StatusPanelState> StatusPanels() { return {{L"", 0, 2700}, {L"", 0, 2700}, {L"", 0, 0}}; }

std::wstring CountText(std::int32_t count, bool selected) {
  return DecimalText(count) + (selected ? L" object(s) selected" : L" object(s)");
}

Box Centred(Box box, std::int32_t height) {
  box.top = (height - box.height) / 2;
  return box;
}

}  // namespace

StatusStrip::StatusStrip(ControlParent& form)
    : picInfoMain(form, L"picInfoMain", Box{0, 0, 3000, 360}),
      picInfo(picInfoMain, L"picInfo", Box{60, 0, 240, 240}),
      lblInfo(picInfoMain, L"lblInfo", Box{390, 0, 3000, 225}),
      stbMain(form, L"stbMain", StatusPanels()) {
  lblInfo.SetUseMnemonic(false);
}

void StatusStrip::SetPlace(std::int32_t left, std::int32_t top, std::int32_t width) {
  const std::int32_t height = picInfoMain.Place().height;
  picInfoMain.SetPlace({left, top, width, height});
  picInfo.SetPlace(Centred(picInfo.Place(), height));
  Box label = Centred(lblInfo.Place(), height);
  label.width = width;
  lblInfo.SetPlace(label);
}

void StatusStrip::SetStatusBar(StatusFacts facts) {
  if (facts.DetailText.empty()) facts.DetailText = facts.PathText;
  facts.PathText.clear();
  if (facts.Selected && facts.Count >= 2) facts.TypeText = L"Multiple selection";
  stbMain.SetPanelText(kCountPanel, CountText(facts.Count, facts.Selected));
  stbMain.SetPanelText(kTypePanel, facts.TypeText);
  stbMain.SetPanelText(kDetailPanel, facts.DetailText);
  picInfo.SetIcon(facts.Icon, kStripIcon);
  lblInfo.SetCaption(facts.Caption);
}

}  // namespace burrowmark
