// veltrix-cli screens and identify: what a screen file holds and how its screens are told apart.
#include <optional>
#include <ostream>
#include <utility>

#include "capture/identification.h"
#include "capture/screen_check.h"
#include "capture/screen_file.h"
#include "capture/terminal_preview.h"
#include "cli/cli_args.h"
#include "cli/cli_command.h"
#include "cli/settings_input.h"
#include "resources/hex_text.h"
#include "resources/json_writer.h"
#include "settings/atomic_file.h"
#include "settings/field.h"
#include "settings/screen/screen_pages.h"
#include "tn5250/display_text.h"

namespace veltrix::cli {
namespace {

// A row of a screen image as its display bytes, empty cells as blanks.
std::string RowBytes(const PageRecord& page, int row, int columns) {
  std::string bytes;
  for (int c = 0; c < columns; ++c) {
    const std::uint8_t b = ImageCell(page, row, c);
    bytes += static_cast<char>(b == 0 ? ' ' : b);
  }
  return bytes;
}

// The same as UTF-8 text.
std::string RowText(const PageRecord& page, int row, int columns) {
  std::string text;
  for (char b : RowBytes(page, row, columns)) {
    AppendUtf8(text, DisplayByteToUnicode(0, static_cast<std::uint8_t>(b)));
  }
  return text;
}

// Rows and columns counted from 1, as the host window's status bar shows them.
std::string CellText(const ScreenCell& cell) {
  return std::string("row ")
      .append(std::to_string(cell.row + 1))
      .append(" column ")
      .append(std::to_string(cell.column + 1));
}

std::string CharacterText(std::uint8_t b) {
  std::string text = "'";
  AppendUtf8(text, b == 0 ? U' ' : DisplayByteToUnicode(0, b));
  return text + "'" + (b == 0 ? " (empty)" : "");
}

std::optional<LoadedScreens> LoadScreens(const std::string& path, CliIo& io, const char* command,
                                         bool json, int& exit_code) {
  std::string error;
  std::optional<LoadedScreens> loaded = ReadScreenFile(path, error);
  if (loaded) {
    if (loaded->screens_in_file > loaded->screens.size()) {
      Warn(io, FirstScreensReadText(loaded->screens_in_file));
    }
    return loaded;
  }
  if (error == kVersionErrorMessage) {
    // The program's own message on standard output; an unreadable input exits 2 as any other.
    io.out << (json ? JsonWriter().Object().Field("error", error).End().text() : error) << '\n';
  }
  exit_code = Fail(io, std::string(command) + ": " + error);
  return std::nullopt;
}

constexpr const char* kShapes[] = {"diagonal", "along a row", "down a column"};

// "the diagonal from row 3 column 3", as a run is named in explanations.
std::string RunText(const CellRun& run) {
  return std::string(kShapes[run.strategy]).append(" from ").append(CellText(run.start));
}

// A run's fields, in the object open.
void RunFields(const CellRun& run, JsonWriter& json) {
  json.Field("strategy", run.strategy)
      .Field("row", run.start.row + 1)
      .Field("column", run.start.column + 1);
}

void CellJson(const ScreenCell& cell, JsonWriter& json) {
  json.Array().Value(cell.row + 1).Value(cell.column + 1).End();
}

void PrintExplanationText(const Explanation& why, std::ostream& out) {
  for (const PairDistinction& d : why.told_apart) {
    out << "screens " << d.a + 1 << " and " << d.b + 1 << " are told apart at " << CellText(d.cell)
        << ": " << CharacterText(d.first) << " / " << CharacterText(d.second) << '\n';
  }
  constexpr std::size_t kShown = 12;
  for (const PairDifference& d : why.inseparable) {
    out << "screens " << d.a + 1 << " and " << d.b + 1 << " differ only at";
    for (std::size_t i = 0; i < d.cells.size() && i < kShown; ++i) {
      out << (i == 0 ? " " : ", ") << CellText(d.cells[i]);
    }
    if (d.cells.size() > kShown) out << " and " << d.cells.size() - kShown << " more cells";
    out << ", where no run of characteristic cells reaches; capture one of them differently\n";
  }
  // Neighbouring runs of one shape that fail on the same pairs share a line.
  for (std::size_t i = 0; i < why.runs.size();) {
    const RunConflicts& r = why.runs[i];
    std::size_t last = i;
    while (last + 1 < why.runs.size() && why.runs[last + 1].run.strategy == r.run.strategy &&
           why.runs[last + 1].pairs == r.pairs) {
      ++last;
    }
    out << RunText(r.run);
    if (last > i) out << " to " << CellText(why.runs[last].run.start);
    out << " cannot tell apart";
    for (std::size_t p = 0; p < r.pairs.size(); ++p) {
      out << (p ? ", " : " ") << "screens " << r.pairs[p].first + 1 << " and "
          << r.pairs[p].second + 1;
    }
    out << '\n';
    i = last + 1;
  }
  if (!why.drop.empty()) {
    out << "drop or recapture screen" << (why.drop.size() > 1 ? "s" : "");
    for (std::size_t i = 0; i < why.drop.size(); ++i) out << (i ? ", " : " ") << why.drop[i] + 1;
    out << " and the " << RunText(why.drop_run) << " tells the rest apart\n";
  }
  for (const FragileCell& f : why.fragile) {
    out << "characteristic cell " << CellText(f.cell) << " may change:";
    const char* sep = " ";
    if (f.in_input_field) out << std::exchange(sep, ", ") << "inside an input field";
    if (f.on_message_line) out << std::exchange(sep, ", ") << "on the message line";
    if (f.blank_in_a_page) out << std::exchange(sep, ", ") << "blank in a page";
    out << '\n';
  }
}

void ExplanationJson(const Explanation& why, JsonWriter& json) {
  json.Object().Key("told_apart").Array();
  for (const PairDistinction& d : why.told_apart) {
    json.Object()
        .Field("a", d.a + 1)
        .Field("b", d.b + 1)
        .Field("row", d.cell.row + 1)
        .Field("column", d.cell.column + 1)
        .Field("first", HexBytes({&d.first, 1}))
        .Field("second", HexBytes({&d.second, 1}))
        .End();
  }
  json.End().Key("inseparable").Array();
  for (const PairDifference& d : why.inseparable) {
    json.Object().Field("a", d.a + 1).Field("b", d.b + 1).Key("cells").Array();
    for (const ScreenCell& cell : d.cells) CellJson(cell, json);
    json.End().End();
  }
  json.End().Key("runs").Array();
  for (const RunConflicts& r : why.runs) {
    json.Object();
    RunFields(r.run, json);
    json.Key("pairs").Array();
    for (const auto& [a, b] : r.pairs) json.Array().Value(a + 1).Value(b + 1).End();
    json.End().End();
  }
  json.End().Key("drop").Array();
  for (const int screen : why.drop) json.Value(screen + 1);
  json.End();
  if (!why.drop.empty()) {
    json.Key("drop_run").Object();
    RunFields(why.drop_run, json);
    json.End();
  }
  json.Key("fragile").Array();
  for (const FragileCell& f : why.fragile) {
    json.Object()
        .Field("row", f.cell.row + 1)
        .Field("column", f.cell.column + 1)
        .Field("input_field", f.in_input_field)
        .Field("message_line", f.on_message_line)
        .Field("blank_in_a_page", f.blank_in_a_page)
        .End();
  }
  json.End().End();
}

// The screens "1,3-5" names, counted from 1; nothing when the list is not of that form or names
// a screen the file does not hold.
std::optional<std::vector<std::size_t>> KeepList(const std::string& text, std::size_t count) {
  std::vector<std::size_t> keep;
  const int most = static_cast<int>(count);
  std::size_t at = 0;
  while (at <= text.size()) {
    const std::size_t end = std::min(text.find(',', at), text.size());
    const std::string_view item = std::string_view(text).substr(at, end - at);
    const std::size_t dash = item.find('-');
    const std::optional<int> first = ParseInt(item.substr(0, dash), 1, most);
    const std::optional<int> last =
        dash == std::string_view::npos ? first : ParseInt(item.substr(dash + 1), 1, most);
    if (!first || !last || *last < *first) return std::nullopt;
    for (int n = *first; n <= *last; ++n) keep.push_back(static_cast<std::size_t>(n - 1));
    at = end + 1;
  }
  return keep;
}

// --out: the kept screens, then those of --append, written as a new screen file.
int WriteScreens(const ParsedArgs& parsed, const LoadedScreens& loaded, CliIo& io) {
  if (loaded.screens_in_file > loaded.screens.size()) {
    return Fail(io, "screens: the file holds more screens than can be edited (" +
                        std::to_string(kMaxLoadedScreens) + ")");
  }
  std::vector<const PageRecord*> out;
  if (const std::string* keep = parsed.value("--keep")) {
    const auto list = KeepList(*keep, loaded.screens.size());
    if (!list) {
      return Fail(io, "screens: --keep takes screens from 1 to " +
                          std::to_string(loaded.screens.size()) + " as in 1,3-5");
    }
    for (std::size_t k : *list) out.push_back(&loaded.screens[k]);
  } else {
    for (const PageRecord& page : loaded.screens) out.push_back(&page);
  }
  std::optional<LoadedScreens> other;
  if (const std::string* append = parsed.value("--append")) {
    int exit_code = kExitOk;
    other = LoadScreens(*append, io, "screens", false, exit_code);
    if (!other) return exit_code;
    if (other->screens_in_file > other->screens.size()) {
      return Fail(io, "screens: '" + *append + "' holds more screens than can be edited (" +
                          std::to_string(kMaxLoadedScreens) + ")");
    }
    for (const PageRecord& page : other->screens) out.push_back(&page);
  }
  const auto header = ScreenFileHeader();
  std::vector<std::span<const std::uint8_t>> parts{header};
  for (const PageRecord* page : out) parts.emplace_back(*page);
  SaveStatus status;
  const std::string& path = *parsed.value("--out");
  if (!WriteFileAtomically(path, parts, SystemFileCalls(), &status)) {
    return Fail(io, "screens: cannot write '" + path + "': " + status.reason);
  }
  io.out << out.size() << " screens written to " << path << '\n';
  return kExitOk;
}

}  // namespace

int RunScreensCommand(std::span<const std::string> args, CliIo& io) {
  constexpr std::string_view kValues[] = {"--keep", "--append", "--out"};
  constexpr std::string_view kFlags[] = {"--json"};
  const ParsedArgs parsed = ParseArgs(args, kValues, kFlags);
  if (!parsed.error.empty()) return Fail(io, "screens: " + parsed.error);
  if (std::string error = ExpectPositional(parsed, 1, 1); !error.empty()) {
    return Fail(io, "screens: " + error +
                        " (screens FILE.SCR [--json] [--keep LIST] [--append OTHER.SCR] "
                        "[--out NEW.SCR])");
  }
  const bool json = parsed.has_flag("--json");
  int exit_code = kExitOk;
  const auto loaded = LoadScreens(parsed.positional[0], io, "screens", json, exit_code);
  if (!loaded) return exit_code;
  if (parsed.value("--out")) return WriteScreens(parsed, *loaded, io);
  if (parsed.value("--keep") || parsed.value("--append")) {
    return Fail(io, "screens: --keep and --append go with --out NEW.SCR");
  }
  const HostScreenSize size = kHostScreen;
  JsonWriter out;
  out.Object().Key("screens").Array();
  for (std::size_t s = 0; s < loaded->screens.size(); ++s) {
    const PageRecord& page = loaded->screens[s];
    const std::vector<FieldEntry> fields = FieldEntries(page);
    if (json) {
      out.Object().Key("rows").Array();
      for (int r = 0; r < size.rows; ++r) out.Bytes(RowBytes(page, r, size.columns));
      out.End().Key("fields").Array();
      for (const FieldEntry& f : fields) {
        const std::uint8_t ffw[] = {f.format1, f.format2};
        const std::uint8_t fcw[] = {f.control1, f.control2};
        out.Object()
            .Field("number", f.number)
            .Field("resequence", f.resequence)
            .Field("row", f.row + 1)
            .Field("column", f.column + 1)
            .Field("length", f.length)
            .Field("ffw", HexBytes(ffw))
            .Field("fcw", HexBytes(fcw))
            .Field("attribute", HexBytes({&f.attribute, 1}))
            .Field("next", f.next)
            .Field("previous", f.previous)
            .End();
      }
      out.End().End();
      continue;
    }
    io.out << "screen " << s + 1 << '\n';
    for (int r = 0; r < size.rows; ++r) io.out << RowText(page, r, size.columns) << '\n';
    for (const FieldEntry& f : fields) {
      const std::uint8_t ffw[] = {f.format1, f.format2};
      io.out << "field number=" << f.number << " row=" << f.row + 1 << " column=" << f.column + 1
             << " length=" << f.length << " ffw=" << HexBytes(ffw)
             << " attribute=" << HexBytes({&f.attribute, 1}) << '\n';
    }
  }
  if (json) io.out << out.End().End().text() << '\n';
  return kExitOk;
}

int RunIdentifyCommand(std::span<const std::string> args, CliIo& io) {
  constexpr std::string_view kValues[] = {"--into"};
  constexpr std::string_view kFlags[] = {"--json", "--explain"};
  const ParsedArgs parsed = ParseArgs(args, kValues, kFlags);
  if (!parsed.error.empty()) return Fail(io, "identify: " + parsed.error);
  if (std::string error = ExpectPositional(parsed, 1, 1); !error.empty()) {
    return Fail(
        io, "identify: " + error + " (identify FILE.SCR [--json] [--into DOC.QVL] [--explain])");
  }
  const bool json = parsed.has_flag("--json");
  const bool explain = parsed.has_flag("--explain");
  std::unique_ptr<Document> doc;
  const std::string* into = parsed.value("--into");
  if (into != nullptr) {
    doc = LoadSettingsInput(*into, io);
    if (!doc) return kExitUsage;
  }
  int exit_code = kExitOk;
  const auto loaded = LoadScreens(parsed.positional[0], io, "identify", json, exit_code);
  if (!loaded) return exit_code;
  std::string finding;
  const int k = doc ? CharacteristicLengthOf(doc->record, &finding) : kDefaultCharacteristicLength;
  if (!finding.empty()) Warn(io, finding);
  const HostScreenSize size = kHostScreen;
  const Identification id = IdentifyScreens(loaded->screens, k, size);
  const Explanation why =
      explain ? ExplainIdentification(loaded->screens, k, size, id) : Explanation{};
  if (!id.ok) {
    if (json) {
      JsonWriter out;
      out.Object().Field("error", kIdentifyFailedMessage);
      if (explain) ExplanationJson(why, out.Key("explain"));
      io.out << out.End().text() << '\n';
    } else {
      io.out << kIdentifyFailedMessage << '\n';
      if (explain) PrintExplanationText(why, io.out);
    }
    return kExitDiffers;
  }
  if (json) {
    JsonWriter out;
    out.Object().Key("pages").Array();
    for (const int page : id.pages) out.Value(page + 1);
    out.End().Key("duplicates").Array();
    for (std::size_t b = 0; b < id.duplicate_of.size(); ++b) {
      if (id.duplicate_of[b] < 0) continue;
      out.Object().Field("screen", b + 1).Field("of", id.duplicate_of[b] + 1).End();
    }
    out.End().Field("strategy", id.run.strategy).Key("cells").Array();
    for (const ScreenCell& cell : id.cells) CellJson(cell, out);
    out.End().Key("strings").Array();
    for (const int page : id.pages) out.Value(HexBytes(id.strings[static_cast<std::size_t>(page)]));
    out.End();
    if (explain) ExplanationJson(why, out.Key("explain"));
    io.out << out.End().text() << '\n';
  } else {
    io.out << loaded->screens.size() << " screens, " << id.pages.size() << " pages; "
           << kShapes[id.run.strategy] << " from " << CellText(id.run.start) << '\n';
    for (std::size_t i = 0; i < id.pages.size(); ++i) {
      io.out << "page " << i + 1 << ": screen " << id.pages[i] + 1 << '\n';
    }
    for (std::size_t b = 0; b < id.duplicate_of.size(); ++b) {
      if (id.duplicate_of[b] >= 0) {
        io.out << "screen " << b + 1 << " repeats screen " << id.duplicate_of[b] + 1 << '\n';
      }
    }
    if (id.buffer_full) io.out << ScreenBufferFullText(kMaxPages) << '\n';
    if (explain) PrintExplanationText(why, io.out);
  }
  if (doc) {
    // As the Screen page's Load does.
    StoreIdentification(*doc, loaded->screens, id, k);
    WriteNumber(doc->record, kScreensLoaded, 1);
    if (!SaveSettingsOutput(*doc, *into, io)) return kExitUsage;
  }
  return kExitOk;
}

int RunCheckCommand(std::span<const std::string> args, CliIo& io) {
  constexpr std::string_view kFlags[] = {"--json"};
  const ParsedArgs parsed = ParseArgs(args, {}, kFlags);
  if (!parsed.error.empty()) return Fail(io, "check: " + parsed.error);
  if (std::string error = ExpectPositional(parsed, 2, 2); !error.empty()) {
    return Fail(io, "check: " + error + " (check DOC.QVL FILE.SCR [--json])");
  }
  const bool json = parsed.has_flag("--json");
  const auto doc = LoadSettingsInput(parsed.positional[0], io);
  if (!doc) return kExitUsage;
  int exit_code = kExitOk;
  const auto loaded = LoadScreens(parsed.positional[1], io, "check", json, exit_code);
  if (!loaded) return exit_code;
  const std::vector<ScreenCheck> checks = CheckScreens(*doc, loaded->screens);
  bool all_ok = true;
  JsonWriter out;
  out.Object().Key("screens").Array();
  for (std::size_t s = 0; s < checks.size(); ++s) {
    const ScreenCheck& c = checks[s];
    all_ok = all_ok && c.ok();
    // Screens, pages, lines, rows and columns are counted from 1, as the window shows them.
    if (json) {
      out.Object().Field("screen", s + 1).Key("pages").Array();
      for (const int page : c.pages) out.Value(page + 1);
      out.End().Key("missing").Array();
      for (const MissingField& m : c.missing) {
        out.Object()
            .Field("line", m.line + 1)
            .Field("row", m.row + 1)
            .Field("column", m.column + 1)
            .End();
      }
      out.End().Field("ok", c.ok()).End();
      continue;
    }
    io.out << "screen " << s + 1 << ": ";
    if (c.pages.empty()) {
      io.out << "matches no page\n";
      continue;
    }
    io.out << (c.pages.size() == 1 ? "page" : "pages");
    for (std::size_t i = 0; i < c.pages.size(); ++i) io.out << (i ? ", " : " ") << c.pages[i] + 1;
    io.out << (c.pages.size() > 1 ? " (the terminal cannot tell them apart)\n" : "\n");
    for (const MissingField& m : c.missing) {
      io.out << "  line " << m.line + 1 << " shows the host field at row " << m.row + 1
             << " column " << m.column + 1 << ", which this screen does not have\n";
    }
  }
  if (json) io.out << out.End().Field("ok", all_ok).End().text() << '\n';
  return all_ok ? kExitOk : kExitDiffers;
}

int RunPreviewCommand(std::span<const std::string> args, CliIo& io) {
  constexpr std::string_view kValues[] = {"--page"};
  const ParsedArgs parsed = ParseArgs(args, kValues, {});
  if (!parsed.error.empty()) return Fail(io, "preview: " + parsed.error);
  if (std::string error = ExpectPositional(parsed, 1, 2); !error.empty()) {
    return Fail(io, "preview: " + error + " (preview DOC.QVL [FILE.SCR] [--page N])");
  }
  const auto doc = LoadSettingsInput(parsed.positional[0], io);
  if (!doc) return kExitUsage;
  const int pages =
      std::min<int>(static_cast<int>(ReadNumber(doc->record, kTotalPages)), kPageCount);
  int only = 0;  // counted from 1; 0: every page
  if (const std::string* page = parsed.value("--page")) {
    only = ParseInt(*page, 1, std::max(pages, 1)).value_or(0);
    if (only < 1 || only > pages) {
      return Fail(io, "preview: --page takes a page from 1 to " + std::to_string(pages));
    }
  }
  auto print = [&](int page, const PageRecord& screen, const std::string& heading) {
    const TerminalPreview preview = PreviewPage(*doc, page, screen);
    io.out << heading << " (" << preview.size_text << ")\n";
    const std::string border = std::string("+")
                                   .append(static_cast<std::size_t>(preview.chars_per_line), '-')
                                   .append("+\n");
    io.out << border;
    for (const std::string& line : preview.lines) {
      std::string text;
      for (char b : line) AppendUtf8(text, DisplayByteToUnicode(0, static_cast<std::uint8_t>(b)));
      io.out << '|' << text << "|\n";
    }
    io.out << border;
  };
  if (parsed.positional.size() == 1) {
    for (int p = 0; p < pages; ++p) {
      if (only == 0 || only == p + 1)
        print(p, doc->pages[static_cast<std::size_t>(p)], "page " + std::to_string(p + 1));
    }
    return kExitOk;
  }
  // With a screen file: each screen the terminal recognises, as that page shows it.
  int exit_code = kExitOk;
  const auto loaded = LoadScreens(parsed.positional[1], io, "preview", false, exit_code);
  if (!loaded) return exit_code;
  const std::vector<ScreenCheck> checks = CheckScreens(*doc, loaded->screens);
  for (std::size_t s = 0; s < checks.size(); ++s) {
    const std::string screen = "screen " + std::to_string(s + 1);
    if (checks[s].pages.size() != 1) {
      io.out << screen << ": "
             << (checks[s].pages.empty() ? "matches no page" : "matches several pages") << "\n";
      exit_code = kExitDiffers;
      continue;
    }
    const int p = checks[s].pages.front();
    if (only == 0 || only == p + 1)
      print(p, loaded->screens[s], screen + " as page " + std::to_string(p + 1));
  }
  return exit_code;
}

}  // namespace veltrix::cli
