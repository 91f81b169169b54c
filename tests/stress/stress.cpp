#include "tests/stress/stress.h"

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <stdexcept>
#include <utility>

#include "app/start.h"
#include "core/registry.h"
#include "core/registry_keys.h"
#include "core/text.h"
#include "platform/characters.h"
#include "platform/key_codes.h"

namespace burrowmark::stress {
namespace {

constexpr std::size_t kSteps = 250;  // of a run
constexpr std::size_t kToEnd = 60;   // steps within which "/EXIT" must have ended it
constexpr std::size_t kTraced = 60;
constexpr int kDeepest = 3;  // requests within requests
constexpr const char* kPlaces[] = {"loop", "DoEvents", "box", "file dialog", "menu", "popup", "modal window"};
constexpr wchar_t kTitle[] = L"Organize Folders";
constexpr wchar_t kProjected[] = L"C:\\Users\\User\\Desktop\\Organized Folders";

constexpr std::int32_t kHotKeys[] = {49, 50, 51, 52};
constexpr std::int32_t kKeys[] = {kKeyCodeF2, kKeyCodeF2, kKeyCodeF5, L'S'};

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
                             {L"View", L"Refresh"},
                             {L"Tools", L"Windows Explorer"},
                             {L"Tools", L"Refresh Organized Folders", L"on the Desktop"},
                             {L"Help", L"Contents"}};

ShownControl* TreeOf(const ShownWindow& window) {
  for (const auto& control : window.controls) {
    if (control->tree) return control.get();
  }
  return nullptr;
}

void AddTitles(const ShownNode& node, Tree& tree) {
  tree.Add(node.text);
  for (const auto& child : node.children) AddTitles(*child, tree);
}

}  // namespace

// Something that happens: a row for each kind. What a later window brings is one more row; what may be lost with the
// user's consent, and what a box or a file dialog of it is answered, is added to HearBoxes, AnswerBox and AnswerFile.
struct Stress::Deed {
  const char* name;
  std::size_t percent;  // how often it happens when its turn comes
  void (*run)(Stress& run);
};

// What comes from outside, at any moment.
constexpr Stress::Deed Stress::kRequests[] = {
    {"/OF", 100, [](Stress& s) { s.OtherProcess(L"/OF"); }},
    {"/ADD", 100, [](Stress& s) { s.OtherProcess(L"/ADD C:\\Windows"); }},
    {"/OPEN", 100, [](Stress& s) { s.OtherProcess(L"/OPEN " + s.AnyPath()); }},
    {"/OPEN missing", 100, [](Stress& s) { s.OtherProcess(L"/OPEN C:\\n" + std::to_wstring(++s.sent_) + L".bwmk"); }},
    {"/EXIT", 15, [](Stress& s) { s.OtherProcess(L"/EXIT"); }},
    {"close", 15, [](Stress& s) { s.Post(kMessageClose, 0); }},
    {"hot key", 100,
     [](Stress& s) {
       s.machine_.keyboard.Press(s.AnyOf(kHotKeys), {kKeyControl, kKeyShift});
     }},
    {"tray", 100, [](Stress& s) { s.machine_.user.ClickTray(LocalUser::Button::kLeft); }},
    {"tray", 100, [](Stress& s) { s.machine_.user.ClickTray(LocalUser::Button::kRight); }},
    {"session end", 15, [](Stress& s) { s.EndSession(); }},
    {"session stays", 50, [](Stress& s) { s.Post(kMessageEndSession, 0); }},
    {"drive", 100, [](Stress& s) { s.ToggleDrive(L'E'); }},
    {"drive of a file", 15, [](Stress& s) { s.ToggleDrive(L'D'); }},
    {"task bar", 50, [](Stress& s) { s.RestartTaskBar(); }},
    {"scale", 50, [](Stress& s) { s.ChangeScale(); }},
    {"typing", 100, [](Stress& s) { s.Type(); }},
    {"close box", 50, [](Stress& s) { s.CloseWindows(); }},
};

// What the user does only when the program waits for it.
constexpr Stress::Deed Stress::kUserDeeds[] = {
    {"rename", 100, [](Stress& s) { s.Rename(); }},
    {"rename", 100, [](Stress& s) { s.Rename(); }},
    {"menu bar", 100, [](Stress& s) { s.ChooseFromBar(); }},
    {"menu bar", 100, [](Stress& s) { s.ChooseFromBar(); }},
    {"popup", 100, [](Stress& s) { s.ClickRight(); }},
    {"tray", 100, [](Stress& s) { s.machine_.user.ClickTray(LocalUser::Button::kLeft); }},
    {"time", 100, [](Stress& s) { s.machine_.windows.Advance(static_cast<std::int64_t>(s.Upto(4000))); }},
    {"fault", 20, [](Stress& s) { s.Fault(); }},
};

Stress::Stress(unsigned seed, Coverage& coverage)
    : seed_(seed),
      coverage_(coverage),
      random_(seed),
      machine_(folder_.Path()),
      documents_((machine_.drives.Add(L'D'), machine_), [this](const std::string& what) { Fail(what); }) {
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

Stress::~Stress() { machine_.windows.Yielding = {}; }

void Stress::Fail(const std::string& what) const {
  std::cout << "\nFOUND: " << what << "\nseed " << seed_ << ", the last of " << steps_ << " steps:\n";
  for (const std::string& step : trace_) std::cout << "  " << step << '\n';
  std::cout << std::flush;
  std::_Exit(1);
}

void Stress::Run() {
  lastStep_ = kSteps;
  while (steps_ < lastStep_) {
    RunOnce();
    if (Chance(20)) documents_.Damage(default_);
  }
}

void Stress::RunOnce() {
  std::wstring registered;
  clsRegHandler(machine_.registry).GetKeyValue(RegistryKey::kCurrentUser, kSettingsKey, kConfigFileValue, registered);
  default_ = Documents::Known(registered);
  if (default_.empty() || machine_.RealPath(default_).empty()) default_ = Documents::Paths().front();
  faulted_ = false;
  unsaved_.reset();
  toEnd_ = 0;
  Note("start with " + ToUtf8(default_));
  try {
    RunBurrowmark(machine_.platform(), Chance(20) ? L"/OPEN " + AnyPath() : std::wstring());
  } catch (const std::exception& failure) {
    Fail(std::string("the program ended by ") + failure.what());
  }
  Note("ended");
  if (sessionOver_) {  // nothing that came after counts
    documents_.PutBack(atSessionEnd_);
    sessionOver_ = false;
  } else {
    Judge();
  }
  machine_.faults.Clear();
  if (machine_.windows.Main() != 0 || machine_.shell.Tray() != nullptr) Fail("a window or an icon stays behind");
}

// --- what happens when

bool Stress::Step() {
  Look();
  Judge();
  if (sessionOver_ || ++steps_ > lastStep_) {
    WindDown();
  } else if (Chance(50)) {
    Do(AnyOf(kRequests), 0);
  } else {
    Do(AnyOf(kUserDeeds), 0);
  }
  return true;
}

void Stress::Meet(YieldPoint point) {
  if (depth_ >= kDeepest || (acting_ && !machine_.windows.IsBusy())) return;
  Look();
  ++depth_;
  const std::size_t count = sessionOver_ || steps_ > lastStep_ ? 0 : Upto(5) / 2;
  for (std::size_t i = 0; i < count; ++i) {
    Do(AnyOf(kRequests), static_cast<std::size_t>(point) + 1);
  }
  --depth_;
}

void Stress::Do(const Deed& deed, std::size_t place) {
  if (!Chance(deed.percent)) return;
  ++coverage_[deed.name].at(place);
  Note(std::string(static_cast<std::size_t>(depth_) * 2, ' ') + kPlaces[place] + ": " + deed.name);
  const bool before = std::exchange(acting_, place == 0);
  try {
    deed.run(*this);
  } catch (const std::logic_error&) {  // it can't be done just now
  }
  acting_ = before;
}

// All that was broken is mended, so nothing keeps the program from going.
void Stress::WindDown() {
  machine_.faults.Clear();
  machine_.drives.Add(L'D');
  for (const std::wstring& path : Documents::Paths()) machine_.files.SetFileAttributesA(path, 0);
  if (++toEnd_ > kToEnd) Fail("the program can't be ended");
  const bool before = std::exchange(acting_, true);
  if (toEnd_ % 4 == 1) OtherProcess(L"/EXIT");
  acting_ = before;
}

void Stress::Note(const std::string& step) {
  trace_.push_back(step);
  if (trace_.size() > kTraced) trace_.pop_front();
}

// --- chance

std::wstring Stress::AnyPath() {
  const std::vector<std::wstring> paths = Documents::Paths();
  const std::wstring& path = paths[Upto(paths.size())];
  return Chance(30) ? UpperCaseText(path) : path;
}

BoxAnswer Stress::AnswerBox(const std::wstring& text, std::uint32_t style) {
  CheckSaved(text);
  const std::int32_t yesOrNo = Chance(60) || toEnd_ > 0 ? kAnswerYes : kAnswerNo;
  const bool cancels = (style & 7U) == kBoxYesNoCancel && Chance(20) && toEnd_ == 0;
  const std::int32_t answer = (style & 7U) == kBoxOk ? kAnswerOk : cancels ? kAnswerCancel : yesOrNo;
  Note("box: " + ToUtf8(text) + " -> " + std::to_string(answer));
  return {{}, answer, {}};
}

FileScript Stress::AnswerFile(const std::wstring& title) {
  if (Chance(20)) return {title, std::nullopt};
  const bool saves = title.starts_with(L"Save");
  if (saves && Chance(10)) return {title, L"C:\\Docs\\list.txt", 2};
  const std::wstring path = AnyPath();
  const std::optional<EditorView> editor = LookAtEditor();
  if (saves && editor) documents_.ChosenFor(Documents::Known(path), editor->tree.mark);
  Note("file: " + ToUtf8(path));
  return {title, path};
}

// Down a way through the menu, or away from it.
MenuActions Stress::AnswerMenu() {
  MenuActions actions;
  MenuHandle menu = machine_.menus.GetSubMenu(machine_.menus.GetMenu(machine_.windows.Main()), 0);
  actions.Press(MenuKey::kDown);
  while (menu != 0 && !machine_.menus.Entries(menu).empty() && !Chance(15)) {
    const std::vector<LocalMenuEntry>& entries = machine_.menus.Entries(menu);
    const LocalMenuEntry& any = entries[Upto(entries.size())];
    if (any.IsSeparator()) continue;
    const auto first = std::find_if(entries.begin(), entries.end(),
                                    [&any](const LocalMenuEntry& entry) { return entry.text == any.text; });
    actions.Click(first->text);
    Note("menu: " + ToUtf8(first->text));
    menu = first->popup;
    if (menu == 0) return actions;
  }
  return actions.Cancel();
}

// --- what is thrown in

void Stress::OtherProcess(const std::wstring& command) {
  Note("command: " + ToUtf8(command));
  const auto other = machine_.AnotherProcess();
  RunBurrowmark(other->platform(), command);
}

void Stress::EndSession() {
  machine_.user.EndSession();
  machine_.windows.Post([this] { SessionOver(); });
}

// The system ends the process about now: what is on the disk stays as it is.
void Stress::SessionOver() {
  if (sessionOver_ || machine_.windows.Main() == 0) return;
  Look();
  const std::optional<EditorView> editor = LookAtEditor();
  const bool saved =
      !editor || editor->tree.mark == kNoMark || mayLose_ || faulted_ || documents_.AnyFileHolds(editor->tree);
  if (!saved) Fail("the end of the session lost what was edited");
  atSessionEnd_ = documents_.Bytes();
  sessionOver_ = true;
}

// Keys that go to the editor if it takes any: they begin, fill and end a label edit, or run a command.
void Stress::Type() {
  const auto editor = Editor();
  if (!editor || !editor->enabled) return;
  ShownControl* edited = editor->Edited();
  if (edited == nullptr) {
    const std::int32_t key = AnyOf(kKeys);
    editor->Press(key, key == L'S' ? kCtrlMask : 0);
    if (key != kKeyCodeF2 || Chance(30)) return;
    return machine_.windows.Post([this] {
      if (const auto later = Editor(); later && later->Edited() != nullptr) Type();
    });
  }
  const std::wstring id = IdOf(*edited->labelEdit);
  if (!id.empty()) edited->labelEdit = id + L" r" + std::to_wstring(++revision_);
  Note("types " + ToUtf8(*edited->labelEdit));
  editor->Press(id.empty() || Chance(20) ? kKeyCodeEscape : kKeyCodeReturn);
}

void Stress::Rename() {
  const auto editor = Editor();
  if (!editor) return OpenEditorAtTimes();
  const ShownControl* tree = TreeOf(*editor);
  const std::vector<ShownNode*> nodes = tree->tree->Visible();
  const ShownNode* node = nodes.at(Upto(nodes.size()));
  if (!node->children.empty() && Chance(50)) return editor->ToggleNode(tree->window, node->text);
  editor->ClickNode(tree->window, node->text);
  editor->Press(kKeyCodeF2);
  if (Chance(85)) Type();
}

void Stress::ChooseFromBar() {
  const auto editor = Editor();
  if (!editor) return OpenEditorAtTimes();
  const MenuPath& path = AnyOf(kEntries);
  Note("chooses " + ToUtf8(path.back()));
  editor->ChooseMenu(path);
}

// The menu is there only while it is closed.
void Stress::OpenEditorAtTimes() {
  if (Chance(25)) OtherProcess(L"/OF");
}

void Stress::ClickRight() {
  const auto editor = Editor();
  if (!editor) return;
  const ShownControl* tree = TreeOf(*editor);
  editor->ClickNode(tree->window, tree->tree->Visible().back()->text, kRightButton);
}

void Stress::CloseWindows() {
  for (const auto& window : machine_.windows.Desktop.Visible()) window->Close();
}

void Stress::Post(std::uint32_t message, std::int64_t wParam) {
  machine_.windows.PostMessageA(machine_.windows.Main(), message, wParam, 0);
}

void Stress::RestartTaskBar() {
  machine_.user.LoseTaskBar();
  machine_.user.StartTaskBar();
}

void Stress::ChangeScale() {
  machine_.windows.Dpi = static_cast<std::int32_t>(96 + 48 * Upto(3));
  Post(kMessageDpiChanged, machine_.windows.Dpi);
  if (const auto editor = Editor()) editor->ChangeScale(machine_.windows.Dpi);
}

void Stress::Fault() {
  faulted_ = true;
  if (Chance(50)) {
    machine_.files.SetFileAttributesA(AnyPath(), kFileReadOnly);
  } else {
    machine_.faults.FailCall(1 + Upto(40));
  }
}

void Stress::ToggleDrive(wchar_t letter) {
  if (letter == L'D') faulted_ = true;  // a document is on it
  if (!machine_.drives.Remove(letter)) machine_.drives.Add(letter);
}

// --- what is seen

std::shared_ptr<ShownWindow> Stress::Editor() const {
  for (const auto& window : machine_.windows.Desktop.Visible()) {
    if (window->caption.starts_with(kTitle)) return window;
  }
  return nullptr;
}

std::optional<Stress::EditorView> Stress::LookAtEditor() {
  const auto editor = Editor();
  const ShownControl* nodes = editor ? TreeOf(*editor) : nullptr;
  if (nodes == nullptr || nodes->tree->top.children.empty()) return std::nullopt;
  EditorView view;
  const std::wstring name = editor->caption.substr(std::size(kTitle) - 1);
  view.path = name.empty() ? default_ : Documents::Known(name.substr(3));
  for (const auto& root : nodes->tree->top.children) AddTitles(*root, view.tree);
  return view;
}

// At any moment.
void Stress::Look() {
  if (sessionOver_) return;
  HearBoxes();
  const std::optional<EditorView> editor = LookAtEditor();
  if (editor) {
    if (editor->tree.mixed) Fail("the editor shows things of two documents");
    documents_.Shown(editor->tree);
    const bool same = !unsaved_ || (editor->path == unsaved_->path && editor->tree.mark == unsaved_->tree.mark);
    const std::optional<Tree> file = documents_.Read(editor->path);
    if (same && file && !documents_.Same(*file, editor->tree)) unsaved_ = editor;
  }
  documents_.Check();
}

// When no command is under way: what was edited is still there, in the editor or in a file.
void Stress::Judge() {
  if (sessionOver_) return;
  Look();
  const std::optional<EditorView> editor = LookAtEditor();
  if (unsaved_ && documents_.AnyFileHolds(unsaved_->tree)) unsaved_.reset();
  const bool stays = unsaved_ && editor && documents_.Same(editor->tree, unsaved_->tree);
  if (unsaved_ && !stays && !mayLose_) Fail("what was edited is lost: " + ToUtf8(unsaved_->path));
  if (!stays) unsaved_.reset();
  mayLose_ = false;
  documents_.ForgetChoices();
  if (machine_.windows.Main() != 0 && machine_.windows.Desktop.Visible().empty()) CheckMenu();
}

void Stress::HearBoxes() {
  const std::vector<ShownBox>& shown = machine_.dialogs.Shown;
  for (; boxesHeard_ < shown.size(); ++boxesHeard_) {
    const ShownBox& box = shown[boxesHeard_];
    const auto has = [&box](const wchar_t* part) { return box.text.find(part) != std::wstring::npos; };
    if (has(L"save the changes you made") && box.answer == kAnswerNo) mayLose_ = true;
    if (has(L"lose any changes") && box.answer == kAnswerYes) mayLose_ = true;
    if (has(L"Path 'C:\\Gone\\") && box.answer == kAnswerYes) {
      documents_.Deleted(box.text.substr(14, box.text.find(L'\'', 14) - 14));
    }
    if (has(L" is now the default")) default_ = Documents::Known(box.text.substr(0, box.text.find(L" is now")));
    if (has(L"Error opening configuration file n") && !has(L"new.bwmk")) {
      const int number = std::stoi(box.text.substr(34));
      if (number <= told_) Fail("requests out of order: " + std::to_string(number));
      told_ = number;
    }
  }
}

// The menu shows the default file's tree while nobody edits.
void Stress::CheckMenu() {
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

void Stress::CheckSaved(const std::wstring& text) {
  if (sessionOver_ || text.find(L"successfully saved") == std::wstring::npos) return;
  const std::optional<EditorView> editor = LookAtEditor();
  if (!editor || text.find(L".txt") != std::wstring::npos) return;
  const std::optional<Tree> file = documents_.Read(editor->path);
  if (!file || !documents_.Same(*file, editor->tree))
    Fail("it isn't there though it was saved: " + ToUtf8(editor->path));
}

}  // namespace burrowmark::stress
