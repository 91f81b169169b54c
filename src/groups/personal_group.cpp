#include "groups/personal_group.h"

#include "groups/special_folders.h"

namespace burrowmark {
namespace {

struct SampleItem {
  const wchar_t* name;
  const wchar_t* owner;
  const wchar_t* caption;
  const wchar_t* folder;  // key of a special folder
  bool group;
  const wchar_t* type;
};

constexpr SampleItem kSample[] = {
    {L"M1", MIT_GROUP_USER, L"My Group", L"", true, MIT_GROUP_GENERAL},
    {L"M2", MIT_GROUP_USER, L"My Documents", L"Personal", false, MIT_PATH},
    {L"M3", L"M1", L"Desktop", L"Desktop", false, MIT_PATH},
    {L"M4", L"M1", L"Start Menu", L"Start Menu", false, MIT_PATH},
    {L"M5", L"M1", L"Open-All", L"", false, MIT_OPENALL},
};

void AddGroup(const Application& app, clsMenuCollection& store) {
  auto group = std::make_shared<clsMenuItem>(app.platform.clock);
  group->SetName(MIT_GROUP_USER);
  group->OwnerName = kRootOwner;
  group->SetCaption(L"Personal");
  group->SetSubMenu(true);
  group->UserDescription = L"Contains your shortcuts to local and network folders";
  if (store.ItemExists(MIT_HF_HELP_SEP)) {
    store.AddAfter(group, MIT_HF_HELP_SEP, true);
  } else {
    store.AddOne(group, false, true);
  }
}

void AddSample(const Application& app, clsMenuCollection& store) {
  for (const SampleItem& row : kSample) {
    auto item = std::make_shared<clsMenuItem>(app.platform.clock);
    item->SetName(row.name);
    item->OwnerName = row.owner;
    item->SetCaption(row.caption);
    item->SetSubMenu(row.group);
    item->ItemType = row.type;
    item->OpenType = MIT_PATH_EXPLORER;
    if (*row.folder != L'\0') item->FolderPath = GetSpecialFolderPath(app, row.folder);
    store.AddOne(item, false, true);
  }
}

}  // namespace

void SetupPersonalGroup(Application& app, clsMenuCollection& store, PersonalContent content) {
  AddGroup(app, store);
  if (content == PersonalContent::kSample) AddSample(app, store);
}

}  // namespace burrowmark
