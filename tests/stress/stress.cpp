// A user and other processes who do anything at any moment, and what must hold whatever they do.
//
// "stress_tests" runs a fixed set of seeds; "stress_tests SEED SECONDS" runs that seed and those behind it for a while.
#include <sanitizer/common_interface_defs.h>

#include <array>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <deque>
#include <iostream>
#include <memory>
#include <random>
#include <stdexcept>

#include "app/start.h"
#include "core/registry.h"
#include "core/registry_keys.h"
#include "platform/key_codes.h"
#include "platform/local/person/shown_drag.h"
#include "tests/stress/documents.h"
#include "tests/support/scratch_machine.h"

namespace burrowmark::stress {
namespace {

constexpr unsigned kFirstSeed = 1;
constexpr unsigned kSeeds = 12;
constexpr unsigned kLongestRun = 120;  // seconds; one that takes longer hangs
constexpr std::size_t kSteps = 170;    // of a run
constexpr std::size_t kToEnd = 60;     // steps within which "/EXIT" must have ended it
constexpr std::size_t kTraced = 60;
constexpr int kDeepest = 3;  // requests within requests
constexpr const char* kPlaces[] = {"loop", "DoEvents", "box", "file dialog", "menu", "popup", "modal window"};
constexpr wchar_t kTitle[] = L"Organize Folders";
constexpr wchar_t kProjected[] = L"C:\\Users\\User\\Desktop\\Organized Folders";

constexpr std::int32_t kHotKeys[] = {49, 50, 51, 52};
constexpr std::int32_t kKeys[] = {kKeyCodeF2, kKeyCodeF2,     kKeyCodeF2, kKeyCodeF5, kKeyCodeDelete,
                                  L'Z',       kKeyCodeInsert, kKeyCodeF4, L'S'};

// Entries of the editor's menus; the saving ones stand more than once.
const MenuPath kEntries[] = {{L"File", L"Save"},
                             {L"File", L"Save As..."},
                             {L"File", L"Save As..."},
                             {L"File", L"Open..."},
                             {L"File", L"Open..."},
                             {L"File", L"Open Default"},
                             {L"File", L"Set As Default"},
                             {L"File", L"Exit Discarding Changes"},
                             {L"File", L"Exit"},
                             {L"File", L"Exit"},
                             {L"File", L"Information..."},
                             {L"File", L"Options..."},
                             {L"View", L"Refresh"},
                             {L"Tools", L"Folder Report..."},
                             {L"Tools", L"Verify Shortcuts..."},
                             {L"Tools", L"Restore", L"Personal Group..."},
                             {L"Tools", L"Windows Explorer"},
                             {L"Tools", L"Refresh Organized Folders", L"on the Desktop"},
                             {L"Tools", L"Refresh Organized Folders", L"on the Desktop"},
                             {L"Tools", L"Refresh Organized Folders", L"on the Desktop"},
                             {L"Help", L"Contents"},
                             {L"Help", L"About Burrowmark..."}};

// How often each kind of action met each kind of place where messages run, the loop itself first.
using Coverage = std::map<std::string, std::array<std::size_t, std::size(kPlaces)>>;

class Stress;

// When something happens: at any moment, from outside; when the user gets at the windows; when the program is at rest.
enum class When : std::uint8_t { kAnyTime, kAtDoEvents, kAtRest };

// Something that happens: a row for each kind. What a later window brings is one more row; what may be lost with the
// user's consent, and what a box or a file dialog of it is answered, is added to HearBoxes, AnswerBox and AnswerFile.
struct Deed {
  const char* name;
  std::size_t percent;  // how often it happens when its turn comes
  When when;
  void (*run)(Stress& run);
};

// One machine on which the program is started again and again. Everything follows from the seed.
class Stress {
 public:
  Stress(unsigned seed, Coverage& coverage) : seed_(seed), coverage_(coverage), random_(seed) {
    machine_.clock.Fixed = test::ScratchMachine::kNow;
    clsRegHandler registry(machine_.registry);
    const auto set = [&](const wchar_t* name, bool on) {
      registry.SetKeyValue(RegistryKey::kCurrentUser, kSettingsKey, name, on ? L"True" : L"False");
    };
    set(L"AC0", Chance(20));    // System Folders
    set(L"ADVC2", Chance(60));  // projected to the Desktop,
    set(L"ADVC6", true);        // at closing
    set(L"ADVC7", true);        // hot keys
    machine_.AddFolders(kProjected);
    machine_.windows.Input = [this] { return Step(); };
    machine_.windows.Yielding = [this](YieldPoint point) { Meet(point); };
    machine_.user.AnyBox = [this](const std::wstring& text, std::uint32_t style) { return AnswerBox(text, style); };
    machine_.user.AnyFile = [this](const std::wstring& title) { return AnswerFile(title); };
    machine_.user.AnyMenu = [this] { return AnswerMenu(); };
  }
  ~Stress() { machine_.windows.Yielding = {}; }
  Stress(const Stress&) = delete;
  Stress& operator=(const Stress&) = delete;

  // Returns if nothing was found.
  void Run() {
    while (steps_ < kSteps) {
      RunOnce();
      if (Chance(20)) documents_.Damage(default_);
    }
  }
  // Ends the process with the seed and the last steps.
  [[noreturn]] void Fail(const std::string& what) const {
    std::cout << "\nFOUND: " << what << "\nseed " << seed_ << ", the last of " << steps_ << " steps:\n";
    for (const std::string& step : trace_) std::cout << "  " << step << '\n';
    std::cout << std::flush;
    std::_Exit(1);
  }
  std::size_t Steps() const { return steps_; }

  // --- what is thrown in

  void OtherProcess(const std::wstring& command) {
    Note("command: " + ToUtf8(command));
    const auto other = machine_.AnotherProcess();
    RunBurrowmark(other->platform(), command);
  }
  void OpenMissing() { OtherProcess(L"/OPEN C:\\n" + std::to_wstring(++sent_) + L".bwmk"); }
  void Open() { OtherProcess(L"/OPEN " + AnyPath()); }
  void PressHotKey() { machine_.keyboard.Press(AnyOf(kHotKeys), {kKeyControl, kKeyShift}); }
  void ClickTray() { machine_.user.ClickTray(Chance(60) ? LocalUser::Button::kLeft : LocalUser::Button::kRight); }
  void EndSession() {
    machine_.user.EndSession();
    machine_.windows.Post([this] { SessionOver(); });
  }
  void Post(std::uint32_t message, std::int64_t wParam) {
    machine_.windows.PostMessageA(machine_.windows.Main(), message, wParam, 0);
  }
  void ToggleDrive(wchar_t letter) {
    if (letter == L'D') faulted_ = true;  // a document is on it
    if (!machine_.drives.Remove(letter)) machine_.drives.Add(letter);
  }
  void RestartTaskBar() {
    machine_.user.LoseTaskBar();
    machine_.user.StartTaskBar();
  }
  void ChangeScale() {
    machine_.windows.Dpi = static_cast<std::int32_t>(96 + 48 * Upto(3));
    Post(kMessageDpiChanged, machine_.windows.Dpi);
    if (const auto editor = Editor()) editor->ChangeScale(machine_.windows.Dpi);
  }
  void CloseWindows() {
    for (const auto& window : machine_.windows.Desktop.Visible()) window->Close();
  }
  void LetTimePass() { machine_.windows.Advance(static_cast<std::int64_t>(Upto(4000))); }
  void Fault() {
    faulted_ = true;
    if (Chance(50)) {
      machine_.files.SetFileAttributesA(AnyOf(kFiles).path, kFileReadOnly);
    } else {
      machine_.faults.FailCall(1 + Upto(40));
    }
  }
  // Keys that go to the editor if it takes any: they begin, fill and end a label edit, or run a command.
  void Type() {
    const auto editor = Editor();
    if (!editor || !editor->enabled) return;
    ShownControl* edited = editor->Edited();
    if (edited == nullptr) {
      const std::int32_t key = AnyOf(kKeys);
      if (key == L'Z') mayLose_ = true;  // taken back is lost by the user's will
      editor->Press(key, key == L'S' || key == L'Z' ? kCtrlMask : 0);
      return key == kKeyCodeF2 && Chance(70) ? TypeLater() : void();
    }
    const std::wstring id = IdOf(*edited->labelEdit);
    if (!id.empty()) edited->labelEdit = id + L" r" + std::to_wstring(++revision_);
    Note("types " + ToUtf8(*edited->labelEdit));
    editor->Press(id.empty() || Chance(20) ? kKeyCodeEscape : kKeyCodeReturn);
  }
  void Rename() {
    const auto editor = Editor();
    if (!editor) return OpenEditorAtTimes();
    const ShownControl* tree = TreeOf(*editor);
    const ShownNode* node = AnyOf(tree->tree->Visible());
    if (!node->children.empty() && Chance(50)) return editor->ToggleNode(tree->window, node->text);
    editor->ClickNode(tree->window, node->text);
    editor->Press(kKeyCodeF2);
    if (Chance(85)) TypeLater();
  }
  // Within the tree, or folders of another program; what comes meanwhile comes in the middle of the drag.
  void Drag() {
    const auto editor = Editor();
    if (!editor || !editor->enabled) return;
    const WindowHandle tree = TreeOf(*editor)->window;
    const auto way = [this, &editor, tree](ShownDrag& drag) {
      if (Chance(30)) Chance(30) ? OtherProcess(L"/EXIT") : Open();
      drag.OverNode(*editor, tree, AnyOf(TreeOf(*editor)->tree->Visible())->text, Chance(30) ? kCtrlMask : 0);
      if (Chance(80)) drag.Drop();
    };
    if (Chance(60)) return editor->DragNode(tree, AnyOf(TreeOf(*editor)->tree->Visible())->text, way);
    ShownDrag folders(kEffectCopy, std::vector<std::wstring>(1 + Upto(3), L"C:\\Windows"));
    way(folders);
  }
  void ChooseFromBar() {
    const auto editor = Editor();
    if (!editor) return OpenEditorAtTimes();
    const MenuPath path = AnyOf(kEntries);
    Note("chooses " + ToUtf8(path.back()));
    editor->ChooseMenu(path);
  }
  void ClickRight() {
    const auto editor = Editor();
    if (!editor) return;
    const ShownControl* tree = TreeOf(*editor);
    editor->ClickNode(tree->window, tree->tree->Visible().back()->text, kRightButton);
  }

 private:
  struct EditorView {
    std::wstring path;
    Tree tree;
  };

  void RunOnce() {
    std::wstring registered;
    clsRegHandler(machine_.registry).GetKeyValue(RegistryKey::kCurrentUser, kSettingsKey, kConfigFileValue, registered);
    default_ = Known(registered);
    if (default_.empty() || machine_.RealPath(default_).empty()) default_ = kFiles[0].path;
    faulted_ = false;
    MakeWritable();
    unsaved_.reset();
    toEnd_ = 0;
    Note("start with " + ToUtf8(default_));
    try {
      RunBurrowmark(machine_.platform(), Chance(20) ? L"/OPEN " + AnyPath() : std::wstring());
    } catch (const std::exception& failure) {
      Fail(std::string("the program ended by ") + failure.what());
    }
    Note("ended");
    if (std::exchange(sessionOver_, false)) {  // nothing that came after counts
      documents_.PutBack(atSessionEnd_);
    } else {
      Judge();
    }
    machine_.faults.Clear();
    if (machine_.windows.Main() != 0 || machine_.shell.Tray() != nullptr) Fail("a window or an icon stays behind");
  }

  // --- what happens when

  bool Step() {
    Look();
    Judge();
    if (sessionOver_ || ++steps_ > kSteps) {
      WindDown();
    } else {
      Do(When::kAnyTime, When::kAtRest, 0);
    }
    return true;
  }

  void Meet(YieldPoint point) {
    // What runs there is a gesture of the user's own, not the program.
    const bool own = acting_ && point == YieldPoint::kDoEvents && !machine_.windows.IsBusy();
    if (depth_ >= kDeepest || own) return;
    Look();
    ++depth_;
    const std::size_t count = sessionOver_ || steps_ > kSteps ? 0 : Upto(5) / 2;
    for (std::size_t i = 0; i < count; ++i) {
      const When when = point == YieldPoint::kDoEvents && Chance(60) ? When::kAtDoEvents : When::kAnyTime;
      Do(when, when, static_cast<std::size_t>(point) + 1);
    }
    --depth_;
  }

  void Do(When first, When last, std::size_t place);

  // All that was broken is mended, so nothing keeps the program from going.
  void WindDown() {
    machine_.faults.Clear();
    machine_.drives.Add(L'D');
    MakeWritable();
    if (++toEnd_ > kToEnd) Fail("the program can't be ended");
    const bool before = std::exchange(acting_, true);
    if (toEnd_ % 4 == 1) OtherProcess(L"/EXIT");
    acting_ = before;
  }

  void MakeWritable() {
    for (const FileRow& row : kFiles) machine_.files.SetFileAttributesA(row.path, 0);
  }
  void Note(const std::string& step) {
    trace_.push_back(step);
    if (trace_.size() > kTraced) trace_.pop_front();
  }

  // --- chance

  std::size_t Upto(std::size_t count) { return random_() % count; }
  bool Chance(std::size_t percent) { return Upto(100) < percent; }
  template <typename Rows>
  auto AnyOf(const Rows& rows) -> std::decay_t<decltype(*std::begin(rows))> {
    return *(std::begin(rows) + static_cast<std::ptrdiff_t>(Upto(std::size(rows))));
  }
  // One file has many spellings.
  std::wstring AnyPath() {
    const std::wstring path = AnyOf(kFiles).path;
    const std::size_t spelling = Upto(4);
    return spelling == 0 ? UpperCaseText(path) : spelling == 1 ? path.substr(0, 3) + L"x\\..\\" + path.substr(3) : path;
  }
  BoxAnswer AnswerBox(const std::wstring& text, std::uint32_t style) {
    CheckSaved(text);
    const std::int32_t yesOrNo = Chance(60) || toEnd_ > 0 ? kAnswerYes : kAnswerNo;
    const bool cancels = (style & 7U) == kBoxYesNoCancel && Chance(20) && toEnd_ == 0;
    const std::int32_t answer = (style & 7U) == kBoxOk ? kAnswerOk : cancels ? kAnswerCancel : yesOrNo;
    Note("box: " + ToUtf8(text) + " -> " + std::to_string(answer));
    return {{}, answer, {}};
  }
  FileScript AnswerFile(const std::wstring& title) {
    if (Chance(20)) return {title, std::nullopt};
    const bool saves = title.starts_with(L"Save");
    if (saves && Chance(10)) return {title, L"C:\\Docs\\list.txt", 2};
    const std::wstring path = AnyPath();
    const std::optional<EditorView> editor = LookAtEditor();
    if (saves && editor) documents_.ChosenFor(Known(path), editor->tree.mark);
    Note("file: " + ToUtf8(path));
    return {title, path};
  }
  // Down a way through the menu, or away from it.
  MenuActions AnswerMenu() {
    MenuActions actions;
    MenuHandle menu = machine_.menus.GetSubMenu(machine_.menus.GetMenu(machine_.windows.Main()), 0);
    actions.Press(MenuKey::kDown);
    while (menu != 0 && !machine_.menus.Entries(menu).empty() && !Chance(15)) {
      const std::vector<LocalMenuEntry>& entries = machine_.menus.Entries(menu);
      const LocalMenuEntry any = AnyOf(entries);
      if (any.IsSeparator()) continue;
      actions.Click(any.text);
      Note("menu: " + ToUtf8(any.text));
      const auto isIt = [&any](const LocalMenuEntry& entry) { return entry.text == any.text; };
      menu = std::find_if(entries.begin(), entries.end(), isIt)->popup;  // a click takes the first one
      if (menu == 0) return actions;
    }
    return actions.Cancel();
  }
  // The menu is there only while it is closed.
  void OpenEditorAtTimes() {
    if (Chance(25)) OtherProcess(L"/OF");
  }
  // When what was pressed has reached the program.
  void TypeLater() {
    machine_.windows.Post([this] {
      if (const auto editor = Editor(); editor && editor->Edited() != nullptr) Type();
    });
  }

  // --- what is seen

  std::shared_ptr<ShownWindow> Editor() const {
    for (const auto& window : machine_.windows.Desktop.Visible()) {
      if (window->caption.starts_with(kTitle)) return window;
    }
    return nullptr;
  }
  bool IsAtWork() const {
    const LocalDesktop& desktop = machine_.windows.Desktop;
    return desktop.WithCaption(L"Saving Changes...") || desktop.WithCaption(L"Refresh Organized Folders...");
  }
  static ShownControl* TreeOf(const ShownWindow& window) {
    for (const auto& control : window.controls) {
      if (control->tree) return control.get();
    }
    return nullptr;
  }
  static void AddTitles(const ShownNode& node, Tree& tree) {
    tree.Add(node.text);
    for (const auto& child : node.children) AddTitles(*child, tree);
  }
  std::optional<EditorView> LookAtEditor() {
    const auto editor = Editor();
    const ShownControl* nodes = editor ? TreeOf(*editor) : nullptr;
    if (nodes == nullptr || nodes->tree->top.children.empty()) return std::nullopt;
    EditorView view;
    const std::wstring name = editor->caption.substr(std::size(kTitle) - 1);
    view.path = name.empty() ? default_ : Known(name.substr(3));
    if (!name.empty() && view.path == default_ && !faulted_) Fail("the default file is taken for another one");
    AddTitles(nodes->tree->top, view.tree);
    return view;
  }

  // At any moment.
  void Look() {
    if (sessionOver_) return;
    HearBoxes();
    const std::optional<EditorView> editor = LookAtEditor();
    if (editor) {
      if (editor->tree.mixed) Fail("the editor shows things of two documents");
      documents_.Shown(editor->tree);
      if (IsAtWork() && atWork_ && *atWork_ != editor->tree) Fail("the user edits while work is under way");
      const bool same = !unsaved_ || (editor->path == unsaved_->path && editor->tree.mark == unsaved_->tree.mark);
      const std::optional<Tree> file = documents_.Read(editor->path);
      if (same && file && !documents_.Same(*file, editor->tree)) unsaved_ = editor;
    }
    atWork_ = editor && IsAtWork() ? std::optional(editor->tree) : std::nullopt;
    documents_.Check();
  }

  // When no command is under way: what was edited is still there, in the editor or in a file.
  void Judge() {
    if (sessionOver_) return;
    Look();
    const std::optional<EditorView> editor = LookAtEditor();
    if (unsaved_ && documents_.AnyFileHolds(unsaved_->tree)) unsaved_.reset();
    // What is on a drive that is away just now is seen when it comes back.
    if (unsaved_ && machine_.RealPath(unsaved_->path).empty()) return;
    const bool stays = unsaved_ && editor && documents_.Same(editor->tree, unsaved_->tree);
    if (unsaved_ && !stays && !mayLose_) Fail("what was edited is lost: " + ToUtf8(unsaved_->path));
    if (!stays) unsaved_.reset();
    mayLose_ = false;
    documents_.ForgetChoices();
    if (machine_.windows.Main() != 0 && machine_.windows.Desktop.Visible().empty()) CheckMenu();
  }

  void HearBoxes() {
    const std::vector<ShownBox>& shown = machine_.dialogs.Shown;
    for (; boxesHeard_ < shown.size(); ++boxesHeard_) {
      const ShownBox& box = shown[boxesHeard_];
      const auto has = [&box](const wchar_t* part) { return box.text.find(part) != std::wstring::npos; };
      if (has(L"save the changes you made") && box.answer == kAnswerNo) mayLose_ = true;
      if (has(L"lose any changes") && box.answer == kAnswerYes) mayLose_ = true;
      if (has(L"Path 'C:\\Gone\\") && box.answer == kAnswerYes) {
        documents_.Deleted(box.text.substr(14, box.text.find(L'\'', 14) - 14));
      }
      if (has(L" is now the default")) default_ = Known(box.text.substr(0, box.text.find(L" is now")));
      if (has(L"Error opening configuration file n") && !has(L"new.bwmk")) {
        const int number = std::stoi(box.text.substr(34));
        if (number <= told_) Fail("requests out of order: " + std::to_string(number));
        told_ = number;
      }
    }
  }

  // The menu shows the default file's tree while nobody edits.
  void CheckMenu() {
    const std::optional<Tree> file = documents_.Read(default_);
    if (faulted_ || !file) return;
    Tree shown;
    const std::function<void(MenuHandle)> add = [&](MenuHandle menu) {
      for (const LocalMenuEntry& entry : machine_.menus.Entries(menu)) {
        shown.Add(entry.text);
        if (entry.popup != 0) add(entry.popup);
      }
    };
    add(machine_.menus.GetMenu(machine_.windows.Main()));
    if (!documents_.Same(shown, *file)) Fail("the menu doesn't show what " + ToUtf8(default_) + " holds");
  }

  void CheckSaved(const std::wstring& text) {
    if (sessionOver_ || text.find(L"successfully saved") == std::wstring::npos) return;
    const std::optional<EditorView> editor = LookAtEditor();
    if (!editor || text.find(L".txt") != std::wstring::npos) return;
    const std::optional<Tree> file = documents_.Read(editor->path);
    if (!file || !documents_.Same(*file, editor->tree)) Fail("not there though saved: " + ToUtf8(editor->path));
  }

  // The system ends the process about now: what is on the disk stays as it is.
  void SessionOver() {
    if (sessionOver_ || machine_.windows.Main() == 0) return;
    Look();
    const std::optional<EditorView> editor = LookAtEditor();
    const bool saved =
        !editor || editor->tree.mark == kNoMark || mayLose_ || faulted_ || documents_.AnyFileHolds(editor->tree);
    if (!saved) Fail("the end of the session lost what was edited");
    atSessionEnd_ = documents_.Bytes();
    sessionOver_ = true;
  }

  unsigned seed_;
  Coverage& coverage_;
  std::mt19937 random_;
  test::ScratchFolder folder_;
  LocalMachine machine_{folder_.Path()};
  Documents documents_{machine_, [this](const std::string& what) { Fail(what); }};
  std::deque<std::string> trace_;
  std::size_t steps_ = 0;
  std::size_t toEnd_ = 0;  // steps since the program should end
  int depth_ = 0;          // of places that throw something in
  bool acting_ = false;    // the user does something in the loop
  int revision_ = 0;       // of titles
  int sent_ = 0;           // files asked for that aren't there; they must be told of in order
  int told_ = 0;
  std::size_t boxesHeard_ = 0;
  std::wstring default_;  // the default file
  std::optional<EditorView> unsaved_;
  std::optional<Tree> atWork_;  // what the editor showed when work was last seen to be under way
  bool mayLose_ = false;        // the user said so
  bool faulted_ = false;        // in this start the machine failed once
  bool sessionOver_ = false;
  std::map<std::wstring, std::string> atSessionEnd_;  // the files
};

constexpr Deed kDeeds[] = {
    {"/OF", 40, When::kAnyTime, [](Stress& s) { s.OtherProcess(L"/OF"); }},
    {"/ADD", 40, When::kAnyTime, [](Stress& s) { s.OtherProcess(L"/ADD C:\\Windows"); }},
    {"/OPEN", 40, When::kAnyTime, [](Stress& s) { s.Open(); }},
    {"/OPEN missing", 40, When::kAnyTime, [](Stress& s) { s.OpenMissing(); }},
    {"/EXIT", 6, When::kAnyTime, [](Stress& s) { s.OtherProcess(L"/EXIT"); }},
    {"close", 6, When::kAnyTime, [](Stress& s) { s.Post(kMessageClose, 0); }},
    {"hot key", 40, When::kAnyTime, [](Stress& s) { s.PressHotKey(); }},
    {"tray", 100, When::kAnyTime, [](Stress& s) { s.ClickTray(); }},
    {"session end", 6, When::kAnyTime, [](Stress& s) { s.EndSession(); }},
    {"session stays", 20, When::kAnyTime, [](Stress& s) { s.Post(kMessageEndSession, 0); }},
    {"drive", 40, When::kAnyTime, [](Stress& s) { s.ToggleDrive(L'E'); }},
    {"drive of a file", 6, When::kAnyTime, [](Stress& s) { s.ToggleDrive(L'D'); }},
    {"task bar", 20, When::kAnyTime, [](Stress& s) { s.RestartTaskBar(); }},
    {"scale", 20, When::kAnyTime, [](Stress& s) { s.ChangeScale(); }},
    {"typing", 40, When::kAnyTime, [](Stress& s) { s.Type(); }},
    {"close box", 20, When::kAnyTime, [](Stress& s) { s.CloseWindows(); }},
    {"rename", 100, When::kAtDoEvents, [](Stress& s) { s.Rename(); }},
    {"menu bar", 100, When::kAtDoEvents, [](Stress& s) { s.ChooseFromBar(); }},
    {"drag", 50, When::kAtDoEvents, [](Stress& s) { s.Drag(); }},
    {"popup", 50, When::kAtDoEvents, [](Stress& s) { s.ClickRight(); }},
    {"time", 50, When::kAtRest, [](Stress& s) { s.LetTimePass(); }},
    {"fault", 10, When::kAtRest, [](Stress& s) { s.Fault(); }},
};

void Stress::Do(When first, When last, std::size_t place) {
  const Deed* deed = nullptr;
  while (deed == nullptr || deed->when < first || deed->when > last || !Chance(deed->percent))
    deed = &kDeeds[Upto(std::size(kDeeds))];
  ++coverage_[deed->name].at(place);
  Note(std::string(static_cast<std::size_t>(depth_) * 2, ' ') + kPlaces[place] + ": " + deed->name);
  const bool before = std::exchange(acting_, place == 0);
  try {
    deed->run(*this);
  } catch (const std::logic_error&) {  // it can't be done just now
  }
  acting_ = before;
}

const Stress* current = nullptr;

void Died() {
  if (current != nullptr) current->Fail("the process dies");
}
void Hangs(int) { current->Fail("the program hangs"); }

int Main(int argc, char** argv) {
  using Clock = std::chrono::steady_clock;
  const bool byHand = argc > 1;
  const auto first = byHand ? static_cast<unsigned>(std::strtoul(argv[1], nullptr, 10)) : kFirstSeed;
  const auto until = Clock::now() + std::chrono::seconds(argc > 2 ? std::strtol(argv[2], nullptr, 10) : 0);
  __sanitizer_set_death_callback(Died);
  std::signal(SIGALRM, Hangs);
  Coverage coverage;
  std::size_t steps = 0;
  unsigned seed = first;
  do {
    alarm(kLongestRun);
    Stress run(seed, coverage);
    current = &run;
    run.Run();
    current = nullptr;
    steps += run.Steps();
  } while (++seed, byHand ? Clock::now() < until : seed < kFirstSeed + kSeeds);
  std::cout << "seeds " << first << " to " << seed - 1 << ", " << steps << " steps; in";
  for (const char* place : kPlaces) std::cout << ' ' << place << ',';
  for (const auto& [name, counts] : coverage) {
    std::cout << '\n' << name << ':';
    for (const std::size_t count : counts) std::cout << ' ' << count;
  }
  std::cout << '\n';
  return 0;
}

}  // namespace
}  // namespace burrowmark::stress

int main(int argc, char** argv) { return burrowmark::stress::Main(argc, argv); }
