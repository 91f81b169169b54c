#include "platform/win32/menus/non_client_metrics.h"

#include "platform/win32/windows/screen_dpi.h"

namespace burrowmark {
namespace {

using ParametersForDpiCall = BOOL(WINAPI*)(UINT, UINT, void*, UINT, UINT);

}  // namespace

NONCLIENTMETRICSW NonClientMetrics(const SystemLibrary& user, std::int32_t dpi) {
  NONCLIENTMETRICSW metrics = {};
  metrics.cbSize = sizeof(metrics);
  const auto forDpi = user.Find<ParametersForDpiCall>("SystemParametersInfoForDpi");
  if (forDpi != nullptr &&
      forDpi(SPI_GETNONCLIENTMETRICS, sizeof(metrics), &metrics, 0, static_cast<UINT>(dpi)) != FALSE) {
    return metrics;
  }
  ::SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof(metrics), &metrics, 0);
  const int systemDpi = ScreenDpi::OfSystem();
  metrics.lfMenuFont.lfHeight = ::MulDiv(metrics.lfMenuFont.lfHeight, dpi, systemDpi);
  metrics.lfMessageFont.lfHeight = ::MulDiv(metrics.lfMessageFont.lfHeight, dpi, systemDpi);
  return metrics;
}

}  // namespace burrowmark
