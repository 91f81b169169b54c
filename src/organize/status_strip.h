// What the editor tells of what is selected: the status bar and the strip above the list.
#pragma once

#include <string>

#include "ui/label.h"
#include "ui/picture_box.h"
#include "ui/status_bar.h"

namespace burrowmark {

struct StatusFacts {
  std::int32_t Count = 0;
  std::wstring Caption{};
  std::int32_t Icon = 0;  // number of the icon
  bool Selected = false;
  std::wstring TypeText{};
  std::wstring PathText{};  // shows where there is no detail text
  std::wstring DetailText{};
};

class StatusStrip {
 public:
  explicit StatusStrip(ControlParent& form);

  PictureBox picInfoMain;
  PictureBox picInfo;
  Label lblInfo;
  StatusBar stbMain;

  void SetStatusBar(StatusFacts facts);
  // Puts the strip there; its height is its own.
  void SetPlace(std::int32_t left, std::int32_t top, std::int32_t width);
};

}  // namespace burrowmark
