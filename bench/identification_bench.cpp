#include <benchmark/benchmark.h>

#include <string>
#include <vector>

#include "capture/identification.h"
#include "capture/screen_file.h"

namespace veltrix {
namespace {

// 100 screens of text that differ where the first diagonal run reads (`apart`), or only in row 0,
// where no run reaches, so that every attempt fails.
std::vector<PageRecord> Screens(bool apart) {
  std::vector<PageRecord> screens(100);
  for (int i = 0; i < 100; ++i) {
    PageRecord& page = screens[i];
    for (int r = 0; r < 24; ++r) {
      for (int c = 0; c < 80; ++c) {
        page[kScreenImageOffset + r * kScreenImageRowBytes + c] =
            static_cast<std::uint8_t>('A' + (r + c) % 26);
      }
    }
    if (apart) {
      // A lower-case letter on the diagonal, which holds capitals everywhere else.
      const int cell = 2 + i % 20;
      page[kScreenImageOffset + cell * kScreenImageRowBytes + cell] =
          static_cast<std::uint8_t>('a' + i / 20);
    } else {
      const std::string number = std::to_string(1000 + i);
      for (std::size_t j = 0; j < number.size(); ++j) {
        page[kScreenImageOffset + 10 + j] = static_cast<std::uint8_t>(number[j]);
      }
    }
  }
  return screens;
}

void BM_IdentifyHundredDifferentScreens(benchmark::State& state) {
  const std::vector<PageRecord> screens = Screens(true);
  for (auto _ : state) {
    const Identification id = IdentifyScreens(screens, 20, {});
    if (!id.ok || id.pages.size() != 50) state.SkipWithError("the screens were not told apart");
  }
}
BENCHMARK(BM_IdentifyHundredDifferentScreens)->Unit(benchmark::kMillisecond);

void BM_IdentifyHundredScreensNoRunTellsApart(benchmark::State& state) {
  const std::vector<PageRecord> screens = Screens(false);
  for (auto _ : state) {
    const Identification id = IdentifyScreens(screens, 20, {});
    if (id.ok) state.SkipWithError("the screens were told apart");
  }
}
BENCHMARK(BM_IdentifyHundredScreensNoRunTellsApart)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace veltrix
