#include "tools/copy_rows.h"

#include <string>

namespace burrowmark {

void CopyRowsToClipboard(Application& app, const Form& form, const ListView& list) {
  constexpr wchar_t kEnd[] = L"\r\n";
  std::wstring text;
  for (const ListColumn& column : list.Columns()) text += column.text + L"\t";
  text += kEnd;
  const bool all = list.SelectedCount() == 0;
  for (std::int32_t i = 1; i <= list.Count(); ++i) {
    const ListItem& row = list.Item(i);
    if (!all && !row.Selected()) continue;
    for (std::size_t column = 0; column < list.Columns().size(); ++column) text += row.SubItem(column) + L"\t";
    text += kEnd;
  }
  const bool copied = app.platform.clipboard.SetText(text);
  app.platform.dialogs.MessageBoxA(
      form.Window(),
      copied ? L"The data has been copied to the Clipboard." : L"The data couldn't be copied to the Clipboard.",
      L"Burrowmark", copied ? kBoxInformation : kBoxCritical);
}

}  // namespace burrowmark
