#include "platform/win32/windows/drag_source.h"

#include <shlobj.h>

#include <algorithm>
#include <string>
#include <vector>

#include "platform/peers/ui_control.h"
#include "platform/win32/shell/com_object.h"
#include "platform/win32/shell/counted_object.h"

namespace burrowmark {
namespace {

class DropSource;
DropSource* running = nullptr;  // of the interface thread, which alone drags

class DropSource final : public CountedObject<IDropSource> {
 public:
  DropSource() : CountedObject(IID_IDropSource) { running = this; }

  void Cancel() { cancelled_ = true; }

  HRESULT STDMETHODCALLTYPE QueryContinueDrag(BOOL escape, DWORD keys) override {
    if (escape != FALSE || cancelled_ || (keys & MK_RBUTTON) != 0) return DRAGDROP_S_CANCEL;
    return (keys & MK_LBUTTON) == 0 ? DRAGDROP_S_DROP : S_OK;
  }
  HRESULT STDMETHODCALLTYPE GiveFeedback(DWORD) override { return DRAGDROP_S_USEDEFAULTCURSORS; }

 private:
  ~DropSource() override { running = nullptr; }

  bool cancelled_ = false;
};

// The format that tells that the drag is ours, and what the system keeps with it for the drag's picture.
class DragData final : public CountedObject<IDataObject> {
 public:
  DragData() : CountedObject(IID_IDataObject) {}

  HRESULT STDMETHODCALLTYPE QueryGetData(FORMATETC* format) override {
    const bool own = format->cfFormat == OwnDragFormat().cfFormat;
    return own || Find(*format) != kept_.end() ? S_OK : DV_E_FORMATETC;
  }
  HRESULT STDMETHODCALLTYPE GetData(FORMATETC* format, STGMEDIUM* medium) override {
    const auto found = Find(*format);
    if (found == kept_.end()) return DV_E_FORMATETC;
    return Copy(found->format.cfFormat, found->medium, *medium);
  }
  HRESULT STDMETHODCALLTYPE SetData(FORMATETC* format, STGMEDIUM* medium, BOOL release) override {
    STGMEDIUM taken = *medium;
    if (release == FALSE) {
      const HRESULT copied = Copy(format->cfFormat, *medium, taken);
      if (FAILED(copied)) return copied;
    }
    const auto found = Find(*format);
    if (found == kept_.end()) {
      kept_.push_back({*format, taken});
    } else {
      ::ReleaseStgMedium(&found->medium);
      found->medium = taken;
    }
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE EnumFormatEtc(DWORD direction, IEnumFORMATETC** formats) override {
    *formats = nullptr;
    if (direction != DATADIR_GET) return E_NOTIMPL;
    std::vector<FORMATETC> all{OwnDragFormat()};
    for (const Kept& kept : kept_) all.push_back(kept.format);
    return ::SHCreateStdEnumFmtEtc(static_cast<UINT>(all.size()), all.data(), formats);
  }
  HRESULT STDMETHODCALLTYPE GetDataHere(FORMATETC*, STGMEDIUM*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetCanonicalFormatEtc(FORMATETC*, FORMATETC* out) override {
    out->ptd = nullptr;
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE DAdvise(FORMATETC*, DWORD, IAdviseSink*, DWORD*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE DUnadvise(DWORD) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE EnumDAdvise(IEnumSTATDATA**) override { return E_NOTIMPL; }

 private:
  struct Kept {
    FORMATETC format;
    STGMEDIUM medium;
  };

  ~DragData() override {
    for (Kept& kept : kept_) ::ReleaseStgMedium(&kept.medium);
  }

  std::vector<Kept>::iterator Find(const FORMATETC& format) {
    return std::find_if(kept_.begin(), kept_.end(), [&format](const Kept& kept) {
      return kept.format.cfFormat == format.cfFormat && (kept.format.tymed & format.tymed) != 0;
    });
  }
  static HRESULT Copy(CLIPFORMAT format, const STGMEDIUM& from, STGMEDIUM& to) {
    to = from;
    to.pUnkForRelease = nullptr;
    switch (from.tymed) {
      case TYMED_HGLOBAL:
        to.hGlobal = ::OleDuplicateData(from.hGlobal, format, 0);
        return to.hGlobal == nullptr ? E_OUTOFMEMORY : S_OK;
      case TYMED_ISTREAM:
        to.pstm->AddRef();
        return S_OK;
      default:
        return DV_E_TYMED;
    }
  }

  std::vector<Kept> kept_;
};

}  // namespace

FORMATETC OwnDragFormat() {
  const std::wstring name = L"Burrowmark drag of process " + std::to_wstring(::GetCurrentProcessId());
  return {static_cast<CLIPFORMAT>(::RegisterClipboardFormatW(name.c_str())), nullptr, DVASPECT_CONTENT, -1,
          TYMED_HGLOBAL};
}

std::uint32_t RunDrag(HWND window, std::uint32_t allowed) {
  if (running != nullptr) return kEffectNone;
  auto* data = new DragData;
  auto* source = new DropSource;
  {
    const ComObject<IDragSourceHelper> picture(CLSID_DragDropHelper, IID_IDragSourceHelper);
    if (picture) picture->InitializeFromWindow(window, nullptr, data);
  }
  DWORD effect = DROPEFFECT_NONE;
  const bool dropped = ::DoDragDrop(data, source, allowed, &effect) == DRAGDROP_S_DROP;
  source->Release();
  data->Release();
  return dropped ? effect : kEffectNone;
}

void CancelDrag() {
  if (running == nullptr) return;
  running->Cancel();
  // The system's loop asks whether to go on when a key comes.
  ::PostMessageW(::GetCapture(), WM_KEYDOWN, VK_ESCAPE, 0);
}

}  // namespace burrowmark
