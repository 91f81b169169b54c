#include "ui/label.h"

namespace burrowmark {

Label::Label(ControlParent& parent, const wchar_t* name, const Box& place, std::wstring_view caption)
    : ControlOf(parent, name, place), caption_(caption) {
  StartWithoutTabStop();
}

Label::Label(ControlParent& parent, const wchar_t* spoken) : Label(parent, L"", Box{}, spoken) { SetVisible(false); }

void Label::SetCaption(std::wstring_view caption) {
  if (Assign(caption_, std::wstring(caption))) Tell(&LabelPeer::CaptionChanged);
}

void Label::SetTextAlignment(Alignment alignment) {
  if (Assign(alignment_, alignment)) Tell(&LabelPeer::StyleChanged);
}

void Label::SetUseMnemonic(bool use) {
  if (Assign(useMnemonic_, use)) Tell(&LabelPeer::StyleChanged);
}

}  // namespace burrowmark
