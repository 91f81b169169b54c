// The report wizards that are open.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "core/application.h"
#include "ui/form.h"

namespace burrowmark {

class frmFolderReport;

class FolderReports {
 public:
  explicit FolderReports(Application& app);
  ~FolderReports();
  FolderReports(const FolderReports&) = delete;
  FolderReports& operator=(const FolderReports&) = delete;

  // Opens one more, about this folder.
  void Show(const std::wstring& folder, const FormOwner& owner);
  // Closes all; a report that is being made is cancelled.
  void Unload();

 private:
  Application& app_;
  std::vector<std::unique_ptr<frmFolderReport>> wizards_;  // those that have gone too, until nothing runs in them
};

}  // namespace burrowmark
