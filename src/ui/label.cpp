#include "ui/label.h"

namespace burrowmark {

Label::Label(ControlParent& parent, std::wstring name, const Box& place, std::wstring caption)
    : ControlOf(parent, std::move(name), place), caption_(std::move(caption)) {
  StartWithoutTabStop();
}

void Label::SetCaption(std::wstring caption) {
  if (Assign(caption_, std::move(caption))) Tell(&LabelPeer::CaptionChanged);
}

void Label::SetTextAlignment(Alignment alignment) {
  if (Assign(alignment_, alignment)) Tell(&LabelPeer::StyleChanged);
}

void Label::SetUseMnemonic(bool use) {
  if (Assign(useMnemonic_, use)) Tell(&LabelPeer::StyleChanged);
}

}  // namespace burrowmark
