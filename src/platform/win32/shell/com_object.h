// An object of the system's component model.
#pragma once

#include <windows.h>
// It wants windows.h ahead of it.
#include <objbase.h>

namespace burrowmark {

// One reference, which goes with this. The thread must be in an apartment.
template <typename Interface>
class ComObject {
 public:
  // A new object; none where the system can't make it.
  ComObject(const CLSID& kind, const IID& id) {
    if (FAILED(::CoCreateInstance(kind, nullptr, CLSCTX_INPROC_SERVER, id, Out()))) object_ = nullptr;
  }
  // Another face of an object; none if it hasn't got it.
  ComObject(IUnknown* object, const IID& id) {
    if (object == nullptr || FAILED(object->QueryInterface(id, Out()))) object_ = nullptr;
  }
  ~ComObject() {
    if (object_ != nullptr) object_->Release();
  }
  ComObject(const ComObject&) = delete;
  ComObject& operator=(const ComObject&) = delete;

  explicit operator bool() const { return object_ != nullptr; }
  Interface* operator->() const { return object_; }
  Interface* Get() const { return object_; }

 private:
  void** Out() { return reinterpret_cast<void**>(&object_); }

  Interface* object_ = nullptr;
};

}  // namespace burrowmark
