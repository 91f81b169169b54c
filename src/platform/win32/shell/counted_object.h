// An object that the system holds by references.
#pragma once

#include <windows.h>
// It wants windows.h ahead of it.
#include <unknwn.h>

namespace burrowmark {

// The counting of an object of one interface, which begins with one reference.
template <typename Interface>
class CountedObject : public Interface {
 public:
  explicit CountedObject(const IID& id) : id_(id) {}
  CountedObject(const CountedObject&) = delete;
  CountedObject& operator=(const CountedObject&) = delete;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
    const bool known = id == IID_IUnknown || id == id_;
    *object = known ? static_cast<Interface*>(this) : nullptr;
    if (known) AddRef();
    return known ? S_OK : E_NOINTERFACE;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
  ULONG STDMETHODCALLTYPE Release() override {
    const ULONG left = --references_;
    if (left == 0) delete this;
    return left;
  }

 protected:
  virtual ~CountedObject() = default;

 private:
  const IID& id_;
  ULONG references_ = 1;
};

}  // namespace burrowmark
