// The clipboard of the local machine.
#pragma once

#include "platform/clipboard.h"

namespace burrowmark {

class LocalClipboard final : public Clipboard {
 public:
  std::optional<std::wstring> Text;
  bool IsHeld = false;  // by another program

  bool SetText(const std::wstring& text) override {
    if (!IsHeld) Text = text;
    return !IsHeld;
  }
  std::optional<std::wstring> GetText() override { return IsHeld ? std::nullopt : Text; }
};

}  // namespace burrowmark
