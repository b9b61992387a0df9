#include <benchmark/benchmark.h>

#include <memory>
#include <string>

#include "settings/document.h"
#include "settings/screen/screen_pages.h"
#include "shell/summary.h"

namespace veltrix {
namespace {

// A document with every page in use and every one of its 24 lines mapped to a host field.
std::unique_ptr<Document> FullDocument() {
  auto doc = std::make_unique<Document>();
  SetDefaults(*doc, 1);
  WriteNumber(doc->record, kTotalPages, kPageCount);
  for (int p = 0; p < static_cast<int>(kPageCount); ++p) {
    WriteNumber(doc->record, kReformatPageTo, 2, p);  // 20 characters * 24 lines
    for (int l = 0; l < kTerminalLinesPerPage; ++l) {
      WriteText(doc->record, kTerminalScreen, "Line " + std::to_string(l) + " of page", p, l);
      WriteNumber(doc->record, kHostRow, static_cast<std::uint32_t>(l), p, l);
      WriteNumber(doc->record, kHostColumn, 10, p, l);
    }
  }
  return doc;
}

void BM_BuildSummaryFullDocument(benchmark::State& state) {
  const auto doc = FullDocument();
  for (auto _ : state) {
    auto tree = BuildSummary(*doc);
    benchmark::DoNotOptimize(tree);
  }
}
BENCHMARK(BM_BuildSummaryFullDocument)->Unit(benchmark::kMillisecond);

void BM_RenderSummaryTextFullDocument(benchmark::State& state) {
  const auto tree = BuildSummary(*FullDocument());
  for (auto _ : state) {
    std::string text = RenderSummaryText(tree);
    benchmark::DoNotOptimize(text);
  }
}
BENCHMARK(BM_RenderSummaryTextFullDocument)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace veltrix
