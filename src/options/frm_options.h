// The dialog in which the options change. A check mark counts for the running program at once; the menu, the disk, the
// system and the registry follow with Apply or OK, and every other way out takes back what wasn't applied.
#pragma once

#include <functional>
#include <span>
#include <string>

#include "core/program_form.h"
#include "options/option_rows.h"
#include "options/option_steps.h"
#include "ui/command_button.h"
#include "ui/frame.h"
#include "ui/label.h"
#include "ui/picture_box.h"
#include "ui/tab_strip.h"
#include "ui/tree_view.h"

namespace burrowmark {

class frmOptions final : public ProgramForm {
 public:
  explicit frmOptions(Application& app);

  // `document` holds the tree that the options are about, and `run` does to it what they ask for; both must outlive the
  // showing.
  void Init(const Document& document, std::function<void(const OptionSteps& steps)> run);

  bool Changed = false;  // something was done to the tree, the disk, the system or the hot keys

 private:
  // A tab: its options, and where they stand.
  struct Page {
    PictureBox& picture;
    TreeView& tree;
    Label& label;
    std::span<const OptionRow> rows;
    std::span<bool> values;
    std::wstring (*name)(std::size_t index);
    const wchar_t* description;  // while no option is selected
  };

  void Form_Load() override;
  void Form_Resize() override;
  void Form_Unload(bool& Cancel) override;

  void ConnectPages();
  void FillPage(const Page& page);
  void ShowChecks();
  void ShowPage();
  bool IsOffered(const bool& value) const;
  static std::size_t IndexOf(const Page& page, const TreeNode& node);
  static void Describe(const Page& page, const TreeNode& node);
  void Check(const Page& page, TreeNode& node);

  void CopySettings(bool Restore);
  void RestoreDefaults();
  bool Accept();
  bool MayRemoveUsersItems();
  void ApplyChanges();
  void ExitProgram();

  const Document* document_ = nullptr;
  std::function<void(const OptionSteps& steps)> run_;
  OptionValues applied_;

  TabStrip SSTab1{*this, L"SSTab1", Box{120, 120, 6720, 5250}, {L"General", L"Appearance", L"Advanced"}};
  // The pages of the tabs; they lie where the strip leaves room.
  PictureBox picGeneral{*this, L"picGeneral", Box{180, 480, 6600, 4830}};
  Label lblGeneral{picGeneral, L"General options"};
  TreeView tvGeneral{picGeneral, L"tvGeneral", Box{180, 180, 6330, 2715}};
  Frame fraGeneral{picGeneral, L"fraGeneral", Box{180, 3000, 6330, 1680}, L"Description"};
  Label lblInfGeneral{fraGeneral, L"lblInfGeneral", Box{180, 300, 5970, 1260}};
  PictureBox picAppearance{*this, L"picAppearance", Box{180, 480, 6600, 4830}};
  Label lblAppearance{picAppearance, L"Appearance options"};
  TreeView tvAppearance{picAppearance, L"tvAppearance", Box{180, 180, 6330, 2715}};
  Frame fraAppearance{picAppearance, L"fraAppearance", Box{180, 3000, 6330, 1680}, L"Description"};
  Label lblInfAppearance{fraAppearance, L"lblInfAppearance", Box{180, 300, 5970, 1260}};
  PictureBox picAdvanced{*this, L"picAdvanced", Box{180, 480, 6600, 4830}};
  Label lblAdvanced{picAdvanced, L"Advanced options"};
  TreeView tvAdvanced{picAdvanced, L"tvAdvanced", Box{180, 180, 6330, 2715}};
  Frame fraAdvanced{picAdvanced, L"fraAdvanced", Box{180, 3000, 6330, 1680}, L"Description"};
  Label lblInfAdvanced{fraAdvanced, L"lblInfAdvanced", Box{180, 300, 5970, 1260}};

  CommandButton cmdCloseFO{*this, L"cmdCloseFO", Box{120, 5550, 1215, 375}, L"E&xit"};
  CommandButton cmdRestore{*this, L"cmdRestore", Box{1455, 5550, 1215, 375}, L"&Default"};
  CommandButton cmdFinish{*this, L"cmdFinish", Box{2955, 5550, 1215, 375}, L"OK"};
  CommandButton cmdCancel{*this, L"cmdCancel", Box{4290, 5550, 1215, 375}, L"Cancel"};
  CommandButton cmdApply{*this, L"cmdApply", Box{5625, 5550, 1215, 375}, L"&Apply"};

  Page pages_[3];
};

// Shows the dialog over the menu's tree. True if something was changed.
bool ShowOptionsOfMenu(Application& app);

}  // namespace burrowmark
