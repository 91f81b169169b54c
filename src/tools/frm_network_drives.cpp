#include "tools/frm_network_drives.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <utility>

#include "core/form_services.h"
#include "core/numbers.h"
#include "core/text.h"
#include "menu/menu_actions.h"
#include "platform/key_codes.h"
#include "tools/copy_rows.h"

namespace burrowmark {
namespace {

constexpr Size kDesign{7665, 5100};
constexpr std::int32_t kReadyIcon = 10;
constexpr std::int32_t kNotReadyIcon = 48;

// Images of rows; one whose drive isn't known yet has none.
constexpr std::int32_t kReady = 1;
constexpr std::int32_t kNotReady = 2;

struct Column {
  const wchar_t* text;
  std::int32_t width;
};

constexpr Column kColumns[] = {
    {L"Drive", 800},       {L"Mapping", 1200}, {L"Path", 2000},     {L"Server", 1200},
    {L"IP Address", 1500}, {L"Comment", 1500}, {L"Provider", 2400},
};

// Columns behind the first, as the list counts them.
enum SubItem : std::size_t { kMapping = 1, kPath, kServer, kAddress, kComment, kProvider };

enum Panel : std::size_t { kCountPanel = 1, kConnectedPanel, kDisconnectedPanel };

constexpr MenuRow kMenuRows[] = {
    {0, L"mnuPopup", L"Popup"},
    {1, L"mnuPopupOpen", L"&Open"},
    {1, L"mnuPopupSep1", kMenuLine},
    {1, L"mnuPopupMap", L"&Map network drives"},
    {1, L"mnuPopupDisconnect", L"&Disconnect network drive"},
    {1, L"mnuPopupSep2", kMenuLine},
    {1, L"mnuPopupCopy", L"&Copy", {L'C', kCtrlMask}},
    {1, L"mnuPopupRefresh", L"&Refresh", {kKeyCodeF5, 0}},
};

const ImageList kButtonImages{16, {47, 48, 45, 26}};

std::vector<ToolbarButtonState> ToolbarButtons() {
  return {ToolbarButton(L"keyConnect", L"Map network drives (CTRL+M)", 1),
          ToolbarButton(L"keyDisconnect", L"Disconnect network drive (CTRL+D)", 2),
          ToolbarButton(L"keyRefresh", L"Refresh list (F5)", 3),
          ToolbarButton(L"keyCopy", L"Copy all or selected data to Clipboard (CTRL+C)", 4)};
}

std::vector<StatusPanelState> Panels() { return {{{}, 0, 2100}, {{}, kReadyIcon, 1800}, {{}, kNotReadyIcon, 0}}; }

std::wstring KeyOf(const std::wstring& drive) { return L"C" + UpperCaseText(drive); }

bool HasDrive(const std::vector<clsNetworkDrive>& drives, const std::wstring& name) {
  return std::any_of(drives.begin(), drives.end(),
                     [&name](const clsNetworkDrive& drive) { return EqualIgnoringCase(drive.LocalName, name); });
}

}  // namespace

// What the enumerations of one filling gave.
struct frmNetworkDrives::Fill {
  std::vector<clsNetworkDrive> connected;
  std::vector<clsNetworkDrive> remembered;
  std::uint32_t error = kNetworkDone;
  bool hasSockets = false;

  const std::vector<clsNetworkDrive>& Source() const { return connected.empty() ? remembered : connected; }
  bool IsRemembered(const std::wstring& drive) const { return connected.empty() || HasDrive(remembered, drive); }

  void Work(Network& network) {
    error = EnumNetworkDrives(network, connected, true);
    const std::uint32_t second = EnumNetworkDrives(network, remembered, false);
    if (error == kNetworkDone) error = second;
    hasSockets = Sockets(network).Ready();
  }
};

// One server, with its drives.
struct frmNetworkDrives::Server {
  std::wstring name;
  std::vector<std::wstring> drives;
  std::vector<bool> ready;
  std::wstring address;

  // The server is looked up once, and only if one of its drives answers.
  void Work(FileSystem& files, Network& network) {
    for (const std::wstring& drive : drives) ready.push_back(DriveIsReady(files, drive));
    if (std::find(ready.begin(), ready.end(), true) == ready.end()) return;
    const Sockets sockets(network);
    address = GetIPFromHostName(network, name);
  }
};

const frmNetworkDrives::Command frmNetworkDrives::kCommands[] = {
    {L"", L"mnuPopupOpen", {}, &frmNetworkDrives::OpenDrive},
    {L"keyConnect", L"mnuPopupMap", {L'M', kCtrlMask}, &frmNetworkDrives::MapDrive},
    {L"keyDisconnect", L"mnuPopupDisconnect", {L'D', kCtrlMask}, &frmNetworkDrives::DisconnectDrive},
    {L"keyRefresh", L"mnuPopupRefresh", {kKeyCodeF5, 0}, &frmNetworkDrives::FillNetworkDrives},
    {L"keyCopy", L"mnuPopupCopy", {L'C', kCtrlMask}, &frmNetworkDrives::CopyToClipboard},
};

frmNetworkDrives::frmNetworkDrives(Application& app)
    : ProgramForm(app, ProgramWindow::kNetworkDrives, L"frmNetworkDrives", kDesign),
      tlbMain(*this, L"tlbMain", ToolbarButtons()),
      stbMain(*this, L"stbMain", Panels()),
      menus_(*this, kMenuRows) {
  SetBorder(FormBorder::kSizable);
  SetCaption(L"Network Drives");
  SetIcon(kReadyIcon);
  SetKeyPreview(true);
  const ImageList images{16, {kReadyIcon, kNotReadyIcon}};
  for (const Column& column : kColumns) lvwMain.AddColumn(column.text, column.width);
  lvwMain.SetImages(images, images);
  tlbMain.SetImages(kButtonImages, kButtonImages);
  menus_[L"mnuPopup"].SetVisible(false);

  for (const Command& command : kCommands) menus_[command.menu].Click = [this, &command] { (this->*command.run)(); };
  tlbMain.ButtonClick = [this](const std::wstring& key) { (this->*CommandOfButton(kCommands, key)->run)(); };
  lvwMain.ItemClick = [this](ListItem&) { ItemClicked_ = true; };
  lvwMain.DblClick = [this] {
    if (ItemClicked_) OpenDrive();
  };
  lvwMain.MouseDown = [this](const MouseEvent& event) { ListMouseDown(event); };
  lvwMain.MouseUp = [this](const MouseEvent& event) { ListMouseUp(event); };
}

Size frmNetworkDrives::FirstSize() const { return kDesign; }

void frmNetworkDrives::Form_Load() { FillNetworkDrives(); }

void frmNetworkDrives::Form_Resize() {
  const Size area = Client();
  if (area.height <= 0) return;
  tlbMain.AlignTop(area);
  stbMain.AlignBottom(area);
  const std::int32_t top = tlbMain.Place().height;
  lvwMain.SetPlace({0, top, area.width, std::max(area.height - top - stbMain.Place().height, 0)});
}

void frmNetworkDrives::Form_Unload(bool&) {
  fill_ = nullptr;
  dialog_ = nullptr;
}

void frmNetworkDrives::Form_KeyDown(std::int32_t& KeyCode, std::int32_t Shift) {
  if (KeyCode == kKeyCodeEscape && Shift == 0) {
    KeyCode = 0;
    Unload();
    return;
  }
  const Command* command = CommandOfKey(kCommands, {KeyCode, Shift});
  if (command == nullptr) return;
  KeyCode = 0;
  (this->*command->run)();
}

// --- the mouse

void frmNetworkDrives::ListMouseDown(const MouseEvent& event) {
  if ((event.shift & (kCtrlMask | kShiftMask)) == 0) lvwMain.SetAllSelected(false);
}

void frmNetworkDrives::ListMouseUp(const MouseEvent& event) {
  ListItem* row = lvwMain.HitTest(event.x, event.y);
  if (event.button != kRightButton || row == nullptr) return;
  row->SetSelected(true);
  menus_.PopupMenu(L"mnuPopup");
}

// --- filling

void frmNetworkDrives::FillNetworkDrives() {
  fill_ = std::make_shared<Life>();
  lvwMain.Clear();
  sources_ = connected_ = waiting_ = 0;
  RefreshStatusBar();
  // What is known so far is nothing, which the pointer tells.
  SetHourglass(*this);
  const auto fill = std::make_shared<Fill>();
  app_.platform.workers.Run([fill, &network = app_.platform.network] { fill->Work(network); },
                            [this, fill, asked = std::weak_ptr<Life>(fill_)] {
                              if (!asked.expired()) ShowDrives(*fill);
                            });
}

void frmNetworkDrives::ShowDrives(const Fill& fill) {
  SetNormalPointer(*this);
  const auto tell = [this](const std::wstring& text, const wchar_t* title, std::uint32_t style) {
    app_.platform.dialogs.MessageBoxA(Window(), text, title, style);
  };
  sources_ = static_cast<std::int32_t>(fill.Source().size());
  if (fill.hasSockets) {
    const ListView::Update update(lvwMain);
    std::vector<clsNetworkDrive> shown;
    for (const clsNetworkDrive& drive : fill.Source()) {
      if (AddDrive(fill, drive)) shown.push_back(drive);
    }
    AskServers(shown);
  }
  RefreshStatusBar();
  if (fill.error != kNetworkDone) tell(L"Error: " + DecimalText(fill.error), L"WNetEnumResources", kBoxOk);
  if (!fill.hasSockets && Loaded()) tell(L"Could not initialize sockets.", L"Burrowmark", kBoxCritical);
}

// False for what has no letter, and for a letter that has a row.
bool frmNetworkDrives::AddDrive(const Fill& fill, const clsNetworkDrive& drive) {
  if (drive.LocalName.empty()) return false;
  ListItem* row = lvwMain.Add(KeyOf(drive.LocalName), drive.LocalName);
  if (row == nullptr) return false;
  row->SetSubItem(kMapping, fill.IsRemembered(drive.LocalName) ? L"Remembered" : L"Connected");
  row->SetSubItem(kPath, drive.RemoteName);
  row->SetSubItem(kServer, GetServerName(drive.RemoteName));
  row->SetSubItem(kComment, drive.Comment);
  row->SetSubItem(kProvider, drive.Provider);
  return true;
}

// Each one is asked by work of its own, so that one that is away holds up no other.
void frmNetworkDrives::AskServers(const std::vector<clsNetworkDrive>& drives) {
  std::map<std::wstring, std::shared_ptr<Server>> servers;
  for (const clsNetworkDrive& drive : drives) {
    const std::wstring name = GetServerName(drive.RemoteName);
    std::shared_ptr<Server>& server = servers[UpperCaseText(name)];
    if (!server) server = std::make_shared<Server>();
    server->name = name;
    server->drives.push_back(drive.LocalName);
    ++waiting_;
  }
  for (const auto& entry : servers) {
    app_.platform.workers.Run([server = entry.second, &files = app_.platform.files,
                               &network = app_.platform.network] { server->Work(files, network); },
                              [this, server = entry.second, asked = std::weak_ptr<Life>(fill_)] {
                                if (!asked.expired()) ShowServer(*server);
                              });
  }
}

void frmNetworkDrives::ShowServer(const Server& server) {
  for (std::size_t i = 0; i < server.drives.size(); ++i) {
    ListItem* row = lvwMain.Find(KeyOf(server.drives[i]));
    if (row == nullptr) continue;
    const bool ready = i < server.ready.size() && server.ready[i];
    --waiting_;
    connected_ += ready ? 1 : 0;
    row->SetIcons(ready ? kReady : kNotReady, ready ? kReady : kNotReady);
    row->SetSubItem(kAddress, ready ? server.address : L"IP unknown");
    row->SetToolTipText(L"(" + std::wstring(ready ? L"Connected" : L"Disconnected") + L") " + row->Text() + L" " +
                        row->SubItem(kAddress) + L" " + row->SubItem(kPath));
  }
  RefreshStatusBar();
}

// What isn't known yet counts as neither.
void frmNetworkDrives::RefreshStatusBar() {
  stbMain.SetPanelText(kCountPanel, DecimalText(sources_) + L" network drive(s)");
  stbMain.SetPanelText(kConnectedPanel, DecimalText(connected_) + L" connected");
  stbMain.SetPanelText(kDisconnectedPanel, DecimalText(sources_ - waiting_ - connected_) + L" disconnected");
}

// --- commands

void frmNetworkDrives::OpenDrive() {
  const ListItem* current = lvwMain.SelectedItem();
  const ListItem* row = current != nullptr && current->Selected() ? current : lvwMain.FirstSelected();
  if (row != nullptr) ExploreFolder(app_, row->Text() + L"\\", false);
}

// One at a time. It has a thread of its own: it asks networks too.
void frmNetworkDrives::ShowSystemDialog(bool connects) {
  if (dialog_) return;
  dialog_ = std::make_shared<Life>();
  app_.platform.workers.Run(
      [connects, owner = Window(), &network = app_.platform.network] {
        connects ? network.WNetConnectionDialog(owner) : network.WNetDisconnectDialog(owner);
      },
      [this, asked = std::weak_ptr<Life>(dialog_)] {
        if (asked.expired()) return;
        dialog_ = nullptr;
        FillNetworkDrives();
      });
}

void frmNetworkDrives::CopyToClipboard() { CopyRowsToClipboard(app_, *this, lvwMain); }

}  // namespace burrowmark
