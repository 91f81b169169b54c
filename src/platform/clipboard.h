// The text on the system's clipboard.
#pragma once

#include <optional>
#include <string>

namespace burrowmark {

// A clipboard that another program holds is tried for half a second.
class Clipboard {
 public:
  virtual ~Clipboard() = default;

  // Puts a text there in place of what is there. False if it couldn't: what was there may be gone.
  virtual bool SetText(const std::wstring& text) = 0;
  // Nothing if there is no text on it, or it couldn't be read.
  virtual std::optional<std::wstring> GetText() = 0;
};

}  // namespace burrowmark
