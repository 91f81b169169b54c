#include "tools/frm_personal_network_info.h"

#include <algorithm>
#include <map>
#include <utility>
#include <vector>

#include "core/numbers.h"
#include "core/os_detection.h"
#include "core/text.h"
#include "platform/key_codes.h"
#include "tools/copy_rows.h"
#include "tools/network_drives.h"

namespace burrowmark {
namespace {

constexpr Size kClient{6600, 4545};
constexpr std::int32_t kPageEdge = 120;

constexpr MenuRow kMenuRows[] = {
    {0, L"mnuPopup", L"Popup"},
    {1, L"mnuPopupCopy", L"&Copy", {L'C', kCtrlMask}},
};

}  // namespace

// What the system tells of the user.
struct frmPersonalNetworkInfo::clsPersonalNetworkInfo {
  std::wstring UserName;
  std::wstring ComputerName;
  std::wstring UserNTDomain;
  std::wstring LogonServer;
  std::wstring OtherDomains;
  bool hasSockets = false;

  void Work(Network& network) {
    hasSockets = Sockets(network).Ready();
    WorkstationUser user;
    network.NetWkstaUserGetInfo(user);
    UserName = user.UserName;
    UserNTDomain = user.LogonDomain;
    LogonServer = user.LogonServer;
    OtherDomains = user.OtherDomains;
  }
};

// The window is open. Rows that wait for the address of one host, by the host's name in capitals.
struct frmPersonalNetworkInfo::Life {
  std::map<std::wstring, std::vector<ListItem*>> waiting;
};

frmPersonalNetworkInfo::frmPersonalNetworkInfo(Application& app)
    : ProgramForm(app, ProgramWindow::kPersonalNetworkInfo, L"frmPersonalNetworkInfo", kClient),
      menus_(*this, kMenuRows) {
  SetCaption(L"Personal Network Info");
  SetKeyPreview(true);
  picPage.SetBackColor(kColorWindow);  // as the system draws the page of a tab
  lvwMain.AddColumn(L"Statistic name", 1900);
  lvwMain.AddColumn(L"Value", 4000);
  cmdFinish.SetDefault(true);
  cmdFinish.SetCancel(true);
  cmdCopyToClipboard.SetToolTipText(L"Copy all or selected data to Clipboard (CTRL+C)");
  cmdFinish.SetToolTipText(L"Close this dialog");
  menus_[L"mnuPopup"].SetVisible(false);

  cmdCopyToClipboard.Click = [this] { CopyToClipboard(); };
  cmdFinish.Click = [this] { Unload(); };
  menus_[L"mnuPopupCopy"].Click = [this] { CopyToClipboard(); };
  lvwMain.MouseUp = [this](const MouseEvent& event) {
    ListItem* row = lvwMain.HitTest(event.x, event.y);
    if (event.button != kRightButton || row == nullptr) return;
    row->SetSelected(true);
    menus_.PopupMenu(L"mnuPopup");
  };
}

void frmPersonalNetworkInfo::Form_Load() {
  lvwMain.Clear();
  life_ = std::make_shared<Life>();
  const auto info = std::make_shared<clsPersonalNetworkInfo>();
  info->ComputerName = app_.platform.system.GetComputerNameA();
  app_.platform.workers.Run([info, &network = app_.platform.network] { info->Work(network); },
                            [this, info, asked = std::weak_ptr<Life>(life_)] {
                              if (!asked.expired() && info->hasSockets) ShowInfo(*info);
                            });
}

void frmPersonalNetworkInfo::Form_Resize() {
  picPage.SetPlace(SSTab1.AreaBelow());
  const Box& page = picPage.Place();
  lvwMain.SetPlace(
      {kPageEdge, kPageEdge, std::max(page.width - 2 * kPageEdge, 0), std::max(page.height - 2 * kPageEdge, 0)});
}

void frmPersonalNetworkInfo::Form_Unload(bool&) { life_ = nullptr; }

void frmPersonalNetworkInfo::Form_KeyDown(std::int32_t& KeyCode, std::int32_t Shift) {
  if (KeyCode != L'C' || Shift != kCtrlMask) return;
  KeyCode = 0;
  CopyToClipboard();
}

void frmPersonalNetworkInfo::ShowInfo(const clsPersonalNetworkInfo& info) {
  AddStatistic(L"User Name", info.UserName);
  AddStatistic(L"Computer Name", info.ComputerName);
  AddAddress(L"Computer IP", {});
  AddStatistic(L"User Domain", info.UserNTDomain);
  AddAddress(L"User Domain IP", info.UserNTDomain);
  AddStatistic(L"Logon Domain", info.LogonServer);
  AddAddress(L"Logon Domain IP", info.LogonServer);
  AddStatistic(L"Other Domains", info.OtherDomains);
  AddStatistic(L"Operating System", GetOSName(app_.platform.system));
}

ListItem& frmPersonalNetworkInfo::AddStatistic(const std::wstring& name, const std::wstring& value) {
  ListItem& row = *lvwMain.Add(L"C" + DecimalText(lvwMain.Count() + 1), name);
  row.SetSubItem(1, value);
  return row;
}

// A host that two rows name is looked up once.
void frmPersonalNetworkInfo::AddAddress(const std::wstring& name, const std::wstring& host) {
  std::vector<ListItem*>& rows = life_->waiting[UpperCaseText(host)];
  rows.push_back(&AddStatistic(name, {}));
  if (rows.size() > 1) return;
  const auto address = std::make_shared<std::wstring>();
  app_.platform.workers.Run(
      [host, address, &network = app_.platform.network] {
        const Sockets sockets(network);
        *address = GetIPFromHostName(network, host);
      },
      [host, address, asked = std::weak_ptr<Life>(life_)] {
        const auto life = asked.lock();
        if (!life) return;
        for (ListItem* row : life->waiting[UpperCaseText(host)]) row->SetSubItem(1, *address);
      });
}

void frmPersonalNetworkInfo::CopyToClipboard() { CopyRowsToClipboard(app_, *this, lvwMain); }

}  // namespace burrowmark
