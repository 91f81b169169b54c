#include "tests/organize/organize_scene.h"

#include <stdexcept>

#include "config/config_file.h"
#include "groups/drives.h"
#include "platform/characters.h"

namespace burrowmark::test {
namespace {

void AddNodes(const ShownNode& node, int level, std::wstring& texts) {
  texts += (texts.empty() ? L"" : L"|") + std::to_wstring(level) + L" " + node.text;
  for (const auto& child : node.children) AddNodes(*child, level + 1, texts);
}

}  // namespace

OrganizeScene::OrganizeScene() {
  app.ConfigFile = app.MainDocument.CurrentConfigFile = L"C:\\default.bwmk";
  app.AC[Appearance::kSystemFolders] = false;  // without System Folders
  AddPersonal();
  AddGroup(L"A", L"Alpha");
  AddShortcut(L"I", L"Inner", L"C:\\Inner", L"A");
  AddShortcut(L"B", L"Beta", L"C:\\Beta")->UserDescription = L"The second";
  const ItemRef gamma = AddShortcut(L"G", L"Gamma", L"C:\\Gamma");
  gamma->OpenType = MIT_PATH_EXPLORER;
  gamma->KeyboardCode = 53;
  gamma->SetIconIDDescription();
  AddFixedEntries(app, app.MainStore(), false);
  SetupDrives(app, app.MainStore());
  Start();
}

void OrganizeScene::Open() {
  ConfigFileWrite(app, app.MainDocument);
  opened_ = std::make_unique<frmOrganize>(app);
  form().Show(Modeless, app.MainWindow);
  machine.windows.DoEvents();
}

ShownControl& OrganizeScene::Control(ShownKind kind) {
  for (const auto& control : Window().controls) {
    if (control->kind == kind) return *control;
  }
  throw std::logic_error("no control of that kind");
}

std::wstring OrganizeScene::Nodes() {
  std::wstring texts;
  for (const auto& root : Control(ShownKind::kTreeView).tree->top.children) AddNodes(*root, 0, texts);
  return texts;
}

std::wstring OrganizeScene::Column(std::size_t column) {
  std::wstring texts;
  const auto& rows = Control(ShownKind::kListView).list->rows;
  for (std::size_t row = 0; row < rows.size(); ++row) {
    texts += (row == 0 ? L"" : L"|") + (column < rows[row].texts.size() ? rows[row].texts[column] : L"");
  }
  return texts;
}

std::wstring OrganizeScene::Status() {
  std::wstring texts;
  for (const std::wstring& text : Window().PanelTexts(Control(ShownKind::kStatusBar).window)) texts += text + L"|";
  for (const auto& control : Window().controls) {
    if (control->kind == ShownKind::kLabel && control->visible) return texts + control->text;
  }
  return texts;
}

std::wstring OrganizeScene::Buttons() {
  std::wstring keys;
  for (const ToolbarButtonState& button : Control(ShownKind::kToolbar).buttons) {
    if (button.enabled && !button.key.empty()) keys += (keys.empty() ? L"" : L" ") + button.key.substr(3);
  }
  return keys;
}

std::int32_t OrganizeScene::RowOf(const std::wstring& text) {
  const auto& rows = Control(ShownKind::kListView).list->rows;
  for (std::size_t row = 0; row < rows.size(); ++row) {
    if (rows[row].texts.front() == text) return static_cast<std::int32_t>(row);
  }
  throw std::logic_error("no such row");
}

void OrganizeScene::ClickRow(const std::wstring& text, std::int32_t button, std::int32_t shift) {
  Window().ClickRow(List(), RowOf(text), button, shift);
  machine.windows.DoEvents();
}

}  // namespace burrowmark::test
