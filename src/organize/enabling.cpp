#include "organize/enabling.h"

#include "core/mit_words.h"
#include "organize/node_keys.h"

namespace burrowmark {
namespace {

//                                       ordinary generated personal root
constexpr EnablingRow kPopup[] = {
    {L"mnuPopupCut", {true, false, false, false}},        {L"mnuPopupCopy", {true, false, false, false}},
    {L"mnuPopupDelete", {true, true, false, false}},      {L"mnuPopupRename", {true, false, false, false}},
    {L"mnuPopupModify", {true, false, false, false}},     {L"mnuPopupProperties", {true, true, true, false}},
    {L"mnuPopupCopyShortcut", {true, true, true, false}},
};
// Unlike in the popup the personal group can be renamed here, and its target not be copied.
constexpr EnablingRow kEdit[] = {
    {L"mnuEditCut", {true, false, false, false}},    {L"mnuEditCopy", {true, false, false, false}},
    {L"mnuEditDelete", {true, true, false, false}},  {L"mnuEditRename", {true, false, true, false}},
    {L"mnuEditModify", {true, false, false, false}}, {L"mnuEditCopyShortcut", {true, false, false, false}},
};
constexpr EnablingRow kView[] = {{L"mnuViewProperties", {true, true, true, false}}};
constexpr EnablingRow kToolbar[] = {
    {L"keyNew", {true, true, true, false}},        {L"keyChange", {true, false, false, false}},
    {L"keyUp", {true, true, true, false}},         {L"keyCut", {true, false, false, false}},
    {L"keyCopy", {true, false, false, false}},     {L"keyDelete", {true, true, false, false}},
    {L"keyProperties", {true, true, true, false}},
};

}  // namespace

TargetKind KindOfTarget(const std::wstring& key) {
  if (key.empty() || key == MIT_HF_ROOT) return TargetKind::kRoot;
  const std::wstring name = NameOfKey(key);
  if (name == MIT_GROUP_USER) return TargetKind::kPersonal;
  if (name == MIT_PATHS_SYSTEM || name == MIT_PATHS_DRIVES) return TargetKind::kGenerated;
  return TargetKind::kOrdinary;
}

std::span<const EnablingRow> PopupEnabling() { return kPopup; }
std::span<const EnablingRow> EditEnabling() { return kEdit; }
std::span<const EnablingRow> ViewEnabling() { return kView; }
std::span<const EnablingRow> ToolbarEnabling() { return kToolbar; }

}  // namespace burrowmark
