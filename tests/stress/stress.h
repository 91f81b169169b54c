// A user and other processes who do anything at any moment, and what must hold whatever they do.
#pragma once

#include <array>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <random>
#include <string>
#include <vector>

#include "tests/stress/documents.h"
#include "tests/support/scratch_machine.h"

namespace burrowmark::stress {

// How often each kind of request met each kind of place where messages run, the loop itself first.
using Coverage = std::map<std::string, std::array<std::size_t, 7>>;

// One machine on which the program is started again and again. Everything follows from the seed.
class Stress {
 public:
  Stress(unsigned seed, Coverage& coverage);
  ~Stress();
  Stress(const Stress&) = delete;
  Stress& operator=(const Stress&) = delete;

  // Returns if nothing was found.
  void Run();
  // Ends the process with the seed and the last steps.
  [[noreturn]] void Fail(const std::string& what) const;
  std::size_t Steps() const { return steps_; }

 private:
  struct Deed;
  static const Deed kRequests[];
  static const Deed kUserDeeds[];

  void RunOnce();
  bool Step();
  void Meet(YieldPoint point);
  void Do(const Deed& deed, std::size_t place);
  void WindDown();
  void Note(const std::string& step);

  // Chance.
  std::size_t Upto(std::size_t count) { return random_() % count; }
  bool Chance(std::size_t percent) { return Upto(100) < percent; }
  template <typename Rows>
  const auto& AnyOf(const Rows& rows) {
    return rows[Upto(std::size(rows))];
  }
  std::wstring AnyPath();
  BoxAnswer AnswerBox(const std::wstring& text, std::uint32_t style);
  FileScript AnswerFile(const std::wstring& title);
  MenuActions AnswerMenu();

  // What is thrown in.
  void OtherProcess(const std::wstring& command);
  void EndSession();
  void SessionOver();
  void Type();
  void Rename();
  void ChooseFromBar();
  void OpenEditorAtTimes();
  void ClickRight();
  void CloseWindows();
  void Post(std::uint32_t message, std::int64_t wParam);
  void RestartTaskBar();
  void ChangeScale();
  void Fault();
  void ToggleDrive(wchar_t letter);

  // What is seen.
  struct EditorView {
    std::wstring path;
    Tree tree;
  };
  std::shared_ptr<ShownWindow> Editor() const;
  std::optional<EditorView> LookAtEditor();
  void Look();
  void Judge();
  void HearBoxes();
  void CheckMenu();
  void CheckSaved(const std::wstring& text);

  unsigned seed_;
  Coverage& coverage_;
  std::mt19937 random_;
  test::ScratchFolder folder_;
  LocalMachine machine_;
  Documents documents_;
  std::deque<std::string> trace_;
  std::size_t steps_ = 0;
  std::size_t lastStep_ = 0;
  std::size_t toEnd_ = 0;  // steps since the program should end
  int depth_ = 0;          // of places that throw something in
  bool acting_ = false;    // the user does something in the loop
  int revision_ = 0;       // of titles
  int sent_ = 0;           // files asked for that aren't there; they must be told of in order
  int told_ = 0;
  std::size_t boxesHeard_ = 0;
  std::wstring default_;  // the default file
  std::optional<EditorView> unsaved_;
  bool mayLose_ = false;  // the user said so
  bool faulted_ = false;  // in this start the machine failed once
  bool sessionOver_ = false;
  std::map<std::wstring, std::string> atSessionEnd_;  // the files
};

}  // namespace burrowmark::stress
