#include "platform/local/faults.h"

#include "platform/characters.h"

namespace burrowmark {

void Faults::FailCall(std::size_t number) {
  FailFrom(number);
  once_ = true;
}

void Faults::FailFrom(std::size_t number) {
  calls_ = 0;
  failed_ = 0;
  record_.clear();
  failFrom_ = number;
  once_ = false;
}

void Faults::Clear() { *this = Faults(); }

bool Faults::Strikes(const char* call, const std::wstring& subject) {
  ++calls_;
  record_.push_back(std::string(call) + " " + ToUtf8(subject));
  if (failFrom_ == 0 || calls_ < failFrom_ || (once_ && calls_ > failFrom_)) return false;
  ++failed_;
  return true;
}

}  // namespace burrowmark
