// "Network Drives": those that are connected or remembered, with their servers, and the ways to map and disconnect
// them.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "core/command_row.h"
#include "core/program_form.h"
#include "tools/network_drives.h"
#include "ui/label.h"
#include "ui/list_view.h"
#include "ui/menu.h"
#include "ui/status_bar.h"
#include "ui/toolbar.h"

namespace burrowmark {

// All that asks a network runs beside the interface thread. What comes back after the list was filled once more, or
// after the window has gone, is dropped.
class frmNetworkDrives final : public ProgramForm {
 public:
  explicit frmNetworkDrives(Application& app);

 private:
  using Command = CommandRow<frmNetworkDrives>;
  static const Command kCommands[];
  struct Fill;
  struct Server;
  struct Life {};

  Size FirstSize() const override;
  void Form_Load() override;
  void Form_Resize() override;
  void Form_Unload(bool& Cancel) override;
  void Form_KeyDown(std::int32_t& KeyCode, std::int32_t Shift) override;
  void ListMouseDown(const MouseEvent& event);
  void ListMouseUp(const MouseEvent& event);

  void FillNetworkDrives();
  void ShowDrives(const Fill& fill);
  bool AddDrive(const Fill& fill, const clsNetworkDrive& drive);
  void AskServers(const std::vector<clsNetworkDrive>& drives);
  void ShowServer(const Server& server);
  void RefreshStatusBar();

  void OpenDrive();
  void MapDrive() { ShowSystemDialog(true); }
  void DisconnectDrive() { ShowSystemDialog(false); }
  void ShowSystemDialog(bool connects);
  void CopyToClipboard();

  // Of the last filling, and of a dialog of the system: what comes back asks whether it is still there.
  std::shared_ptr<Life> fill_;
  std::shared_ptr<Life> dialog_;
  std::int32_t sources_ = 0;  // drives and what has no letter
  std::int32_t connected_ = 0;
  std::int32_t waiting_ = 0;  // rows of which nothing is known yet
  bool ItemClicked_ = false;

  Label lblList{*this, L"Network drives"};
  ListView lvwMain{*this, L"lvwMain", Box{}};
  Toolbar tlbMain;
  StatusBar stbMain;
  FormMenus menus_;
};

}  // namespace burrowmark
