#include "platform/local/faults.h"

#include <algorithm>
#include <iterator>

#include "platform/characters.h"
#include "platform/local/folded.h"

namespace burrowmark {
namespace {

// What the machine itself knows of a drive.
constexpr const char* kAskNoServer[] = {"DriveExists", "DriveList", "GetDriveTypeA"};

}  // namespace

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
  MeetSilence(call, subject);
  if (failFrom_ == 0 || calls_ < failFrom_ || (once_ && calls_ > failFrom_)) return false;
  ++failed_;
  return true;
}

void Faults::MeetSilence(const std::string& call, const std::wstring& subject) const {
  if (std::find(std::begin(kAskNoServer), std::end(kAskNoServer), call) != std::end(kAskNoServer)) return;
  const std::wstring path = Folded(subject);
  for (const std::wstring& place : SilentPlaces) {
    const bool isIn = path.starts_with(place) && (path.size() == place.size() || path[place.size()] == L'\\');
    if (isIn) throw SilentPlace("the interface thread would wait for good: " + record_.back());
  }
}

}  // namespace burrowmark
