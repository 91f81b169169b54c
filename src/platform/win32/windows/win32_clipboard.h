// The clipboard of the real system.
#pragma once

#include "platform/clipboard.h"

namespace burrowmark {

class Win32Clipboard final : public Clipboard {
 public:
  bool SetText(const std::wstring& text) override;
  std::optional<std::wstring> GetText() override;
};

}  // namespace burrowmark
