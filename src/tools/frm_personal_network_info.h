// "Personal Network Info": who the user is on the network.
#pragma once

#include <memory>
#include <string>

#include "core/program_form.h"
#include "ui/command_button.h"
#include "ui/label.h"
#include "ui/list_view.h"
#include "ui/menu.h"
#include "ui/picture_box.h"
#include "ui/tab_strip.h"

namespace burrowmark {

// What asks a network runs beside the interface thread; what comes back after the window has gone is dropped.
class frmPersonalNetworkInfo final : public ProgramForm {
 public:
  explicit frmPersonalNetworkInfo(Application& app);

 private:
  struct clsPersonalNetworkInfo;
  struct Life;

  void Form_Load() override;
  void Form_Resize() override;
  void Form_Unload(bool& Cancel) override;
  void Form_KeyDown(std::int32_t& KeyCode, std::int32_t Shift) override;

  void ShowInfo(const clsPersonalNetworkInfo& info);
  ListItem& AddStatistic(const std::wstring& name, const std::wstring& value);
  // The address comes into the value as soon as it is known.
  void AddAddress(const std::wstring& name, const std::wstring& host);
  void CopyToClipboard();

  std::shared_ptr<Life> life_;  // what comes back asks whether it is still there

  TabStrip SSTab1{*this, L"SSTab1", Box{120, 120, 6360, 3690}, {L"General"}};
  // The page of the tab; it lies where the strip leaves room.
  PictureBox picPage{*this, L"picPage", Box{180, 480, 6240, 3240}};
  Label lblList{picPage, L"Network information"};
  ListView lvwMain{picPage, L"lvwMain", Box{120, 120, 6000, 3000}};
  CommandButton cmdCopyToClipboard{*this, L"cmdCopyToClipboard", Box{120, 3990, 2100, 375}, L"&Copy to Clipboard"};
  CommandButton cmdFinish{*this, L"cmdFinish", Box{5265, 3990, 1215, 375}, L"Close"};
  FormMenus menus_;
};

}  // namespace burrowmark
