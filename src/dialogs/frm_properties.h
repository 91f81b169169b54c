// One item: what it is, where it stands, what it opens and when, and the way to its change. It works on a copy; what
// becomes of that is its caller's to say.
#pragma once

#include <functional>
#include <memory>

#include "core/program_form.h"
#include "ui/command_button.h"
#include "ui/label.h"
#include "ui/line.h"
#include "ui/picture_box.h"
#include "ui/tab_strip.h"
#include "ui/text_box.h"

namespace burrowmark {

class frmProperties final : public ProgramForm {
 public:
  explicit frmProperties(Application& app);

  // Copies the item. `collection` is the store that it stands in.
  void Init(const clsMenuItem& item, std::shared_ptr<clsMenuCollection> collection);

  // Takes over a changed copy at once. It may read HotKeyHolder, and keeps nothing of what it was given.
  std::function<void(const ItemRef& item)> Apply;
  // The item that must lose its hot key because the copy was given it: in Apply, and after an end by OK. Mostly none.
  ItemRef HotKeyHolder;

  // The answer, once it has gone. After an Apply nothing is cancelled any more: another end than OK then gives what the
  // last Apply took.
  bool Cancelled = true;
  const ItemRef& DohvatiMenuItem() const { return Item_; }

 private:
  void Form_Resize() override;
  void Form_Unload(bool& Cancel) override;

  void Fill();
  void Change();
  void CopyTarget();
  void ApplyNow();
  void Finish();
  void ForgetUnusedHolder();

  ItemRef Item_;
  ItemRef Applied_;  // as the last Apply took it; none before
  std::shared_ptr<clsMenuCollection> Collection_;

  TabStrip SSTab1{*this, L"SSTab1", Box{120, 120, 6360, 5070}, {L"General"}};
  // The page of the tab; it lies where the strip leaves room.
  PictureBox picPage{*this, L"picPage", Box{180, 480, 6240, 4620}};
  PictureBox picIcon{picPage, L"picIcon", Box{180, 150, 480, 480}};
  Label lblName{picPage, L"lblName", Box{900, 210, 5130, 480}};
  Line linName{picPage, L"linName", Box{180, 750, 5850, 30}};

  Label lblTypeTitle{picPage, L"lblTypeTitle", Box{180, 930, 1680, 240}, L"Type:"};
  Label lblType{picPage, L"lblType", Box{1920, 930, 4110, 240}};
  Label lblLocationTitle{picPage, L"lblLocationTitle", Box{180, 1290, 1680, 240}, L"&Location:"};
  TextBox txtLocation{picPage, L"txtLocation", Box{1920, 1230, 4110, 315}};
  Label lblPathTitle{picPage, L"lblPathTitle", Box{180, 1680, 1680, 240}, L"Target Location:"};
  Label lblPath{picPage, L"lblPath", Box{1920, 1680, 4110, 480}};
  Label lblKeyboardTitle{picPage, L"lblKeyboardTitle", Box{180, 2250, 1680, 240}, L"Hot key:"};
  Label lblKeyboard{picPage, L"lblKeyboard", Box{1920, 2250, 4110, 240}};
  Line linTimes{picPage, L"linTimes", Box{180, 2640, 5850, 30}};

  Label lblCreatedTitle{picPage, L"lblCreatedTitle", Box{180, 2820, 1680, 240}, L"Created:"};
  Label lblTimeCreated{picPage, L"lblTimeCreated", Box{1920, 2820, 4110, 240}};
  Label lblModifiedTitle{picPage, L"lblModifiedTitle", Box{180, 3150, 1680, 240}, L"Modified:"};
  Label lblTimeModified{picPage, L"lblTimeModified", Box{1920, 3150, 4110, 240}};
  Label lblAccessedTitle{picPage, L"lblAccessedTitle", Box{180, 3480, 1680, 240}, L"Accessed:"};
  Label lblTimeAccessed{picPage, L"lblTimeAccessed", Box{1920, 3480, 4110, 240}};

  Line linCommands{picPage, L"linCommands", Box{180, 3900, 5850, 30}};
  CommandButton cmdChange{picPage, L"cmdChange", Box{180, 4110, 1215, 375}, L"C&hange"};
  CommandButton cmdCopyToClipboard{picPage, L"cmdCopyToClipboard", Box{1530, 4110, 2400, 375},
                                   L"&Copy Target Location"};

  CommandButton cmdFinish{*this, L"cmdFinish", Box{2595, 5370, 1215, 375}, L"OK"};
  CommandButton cmdCancel{*this, L"cmdCancel", Box{3930, 5370, 1215, 375}, L"Cancel"};
  CommandButton cmdApply{*this, L"cmdApply", Box{5265, 5370, 1215, 375}, L"&Apply"};
};

}  // namespace burrowmark
