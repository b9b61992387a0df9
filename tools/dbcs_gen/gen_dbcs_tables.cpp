// Development-time generator of the double-byte conversion tables (src/tn5250/
// double_byte_tables.cpp). Veltrix itself never needs ICU: run this only to rebuild the tables,
// see scripts/gen_dbcs_tables.sh. Usage: gen_dbcs_tables [--stats] > double_byte_tables.cpp
#include <unicode/ucnv.h>
#include <unicode/uversion.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <map>
#include <string>
#include <vector>

namespace {

struct Language {
  const char* array_name;     // C++ name stem of the generated arrays
  int emulation_type;         // `EmulationType` the table serves
  const char* host_cnv;       // EBCDIC mixed code page of the host
  const char* pc_cnv;         // PC double-byte code page
  const char* extra_pc_cnv;   // second PC converter for single code points (nullptr: none)
  char32_t extra_code_point;  // the code point taken from extra_pc_cnv
  bool fallbacks;             // use fallback mappings in both converters
  unsigned last_host;         // host pairs above this are dropped
};

// In the order the program keeps them.
constexpr Language kLanguages[] = {
    {"kTraditionalChinese", 1, "ibm-1371", "ibm-950", "windows-950", 0x20AC, false, 0x91C7},
    {"kSimplifiedChinese", 2, "ibm-935", "ibm-1383", nullptr, 0, false, 0x6C9F},
    {"kJapanese", 4, "ibm-930", "ibm-942", nullptr, 0, true, 0x6885},
    {"kKorean", 3, "ibm-1364", "ibm-1363", nullptr, 0, false, 0xD3BD},
};

struct Entry {
  unsigned host;     // host pair, byte 1 high
  unsigned pc;       // PC code, lead byte high
  char32_t unicode;  // the character both stand for
};

UConverter* Open(const char* name, bool fallbacks) {
  UErrorCode status = U_ZERO_ERROR;
  UConverter* cnv = ucnv_open(name, &status);
  if (U_FAILURE(status)) {
    std::fprintf(stderr, "cannot open converter %s: %s\n", name, u_errorName(status));
    std::exit(1);
  }
  ucnv_setToUCallBack(cnv, UCNV_TO_U_CALLBACK_STOP, nullptr, nullptr, nullptr, &status);
  ucnv_setFromUCallBack(cnv, UCNV_FROM_U_CALLBACK_STOP, nullptr, nullptr, nullptr, &status);
  ucnv_setFallback(cnv, fallbacks ? 1 : 0);
  return cnv;
}

// Bytes in the converter's code page to exactly one code point; 0 when they give none or more.
char32_t ToOneCodePoint(UConverter* cnv, const char* in, int32_t length) {
  UChar out[8];
  UErrorCode status = U_ZERO_ERROR;
  ucnv_reset(cnv);
  int32_t n = ucnv_toUChars(cnv, out, 8, in, length, &status);
  if (U_FAILURE(status) || n < 1 || n > 2) return 0;
  UChar32 c;
  int32_t i = 0;
  U16_NEXT(out, i, n, c);
  if (i != n) return 0;
  return static_cast<char32_t>(c);
}

// Host pair (inside shift-out / shift-in) to one code point; 0 when it has none.
char32_t HostToUnicode(UConverter* host, unsigned pair) {
  const char in[4] = {0x0E, static_cast<char>(pair >> 8), static_cast<char>(pair & 0xFF), 0x0F};
  return ToOneCodePoint(host, in, 4);
}

// One code point to a two-byte PC code with a lead byte of 0x80 or more; 0 when there is none.
unsigned UnicodeToPc(UConverter* pc, char32_t c) {
  UChar in[2];
  int32_t len = 0;
  U16_APPEND_UNSAFE(in, len, c);
  char out[8];
  UErrorCode status = U_ZERO_ERROR;
  ucnv_reset(pc);
  int32_t n = ucnv_fromUChars(pc, out, 8, in, len, &status);
  if (U_FAILURE(status) || n != 2) return 0;
  const auto lead = static_cast<unsigned char>(out[0]);
  if (lead < 0x80) return 0;
  return (lead << 8) | static_cast<unsigned char>(out[1]);
}

// PC code back to a code point; 0 when it has none.
char32_t PcToUnicode(UConverter* pc, unsigned code) {
  const char in[2] = {static_cast<char>(code >> 8), static_cast<char>(code & 0xFF)};
  return ToOneCodePoint(pc, in, 2);
}

std::vector<Entry> Build(const Language& lang) {
  UConverter* host = Open(lang.host_cnv, lang.fallbacks);
  UConverter* pc = Open(lang.pc_cnv, lang.fallbacks);
  UConverter* extra = lang.extra_pc_cnv ? Open(lang.extra_pc_cnv, lang.fallbacks) : nullptr;
  std::vector<Entry> entries;
  for (unsigned pair = 0x4040; pair <= lang.last_host; ++pair) {
    const char32_t c = HostToUnicode(host, pair);
    if (c == 0) continue;
    unsigned code = UnicodeToPc(pc, c);
    if (code == 0 && extra != nullptr && c == lang.extra_code_point) code = UnicodeToPc(extra, c);
    if (code == 0) continue;
    entries.push_back({pair, code, c});
  }
  ucnv_close(host);
  ucnv_close(pc);
  if (extra != nullptr) ucnv_close(extra);
  return entries;
}

// PC code to code point for every PC code the table produces, sorted by PC code.
std::map<unsigned, char32_t> Reverse(const Language& lang, const std::vector<Entry>& entries) {
  UConverter* pc = Open(lang.pc_cnv, lang.fallbacks);
  std::map<unsigned, char32_t> reverse;
  for (const Entry& e : entries) {
    if (reverse.count(e.pc) != 0) continue;
    char32_t c = PcToUnicode(pc, e.pc);
    if (c == 0) c = e.unicode;
    reverse[e.pc] = c;
  }
  ucnv_close(pc);
  return reverse;
}

void PrintArray(const char* type, const std::string& name, const std::vector<unsigned>& values,
                int per_line, const char* format) {
  std::printf("constexpr std::array<%s, %zu> %s = {\n", type, values.size(), name.c_str());
  for (size_t i = 0; i < values.size(); ++i) {
    if (i % per_line == 0) std::printf("    ");
    std::printf(format, values[i]);
    std::printf(i + 1 == values.size() || i % per_line == per_line - 1 ? ",\n" : ", ");
  }
  std::printf("};\n\n");
}

}  // namespace

int main(int argc, char** argv) {
  const bool stats = argc > 1 && std::strcmp(argv[1], "--stats") == 0;
  std::vector<std::vector<Entry>> tables;
  for (const Language& lang : kLanguages) tables.push_back(Build(lang));
  if (stats) {
    for (size_t i = 0; i < tables.size(); ++i) {
      const auto& t = tables[i];
      auto find = [&](unsigned host) {
        for (const Entry& e : t)
          if (e.host == host) return e.pc;
        return 0u;
      };
      std::printf("%s: %zu entries, first %04X, last %04X->%04X, 4040->%04X, 4141->%04X\n",
                  kLanguages[i].array_name, t.size(), t.front().host, t.back().host, t.back().pc,
                  find(0x4040), find(0x4141));
    }
    return 0;
  }
  std::printf("// Generated by tools/dbcs_gen/gen_dbcs_tables.cpp with ICU %s; do not edit.\n",
              U_ICU_VERSION);
  std::printf("// Converters (host to PC):");
  for (const Language& lang : kLanguages) {
    std::printf("\n//   %s to %s", lang.host_cnv, lang.pc_cnv);
    if (lang.extra_pc_cnv != nullptr) {
      std::printf(", U+%04X from %s", static_cast<unsigned>(lang.extra_code_point),
                  lang.extra_pc_cnv);
    }
    if (lang.fallbacks) std::printf(", with fallbacks");
  }
  std::printf(
      "\n// clang-format off\n// Entries: host pair << 16 | PC code, ascending by host pair. "
      "Reverse tables: PC\n"
      "// codes ascending, with the code point of each in the parallel array.\n");
  std::printf(
      "#include \"tn5250/double_byte_tables.h\"\n\nnamespace veltrix::double_byte_tables {\n\n");
  std::printf("namespace {\n\n");
  for (size_t i = 0; i < tables.size(); ++i) {
    const Language& lang = kLanguages[i];
    std::vector<unsigned> packed;
    for (const Entry& e : tables[i]) packed.push_back((e.host << 16) | e.pc);
    PrintArray("std::uint32_t", std::string(lang.array_name), packed, 6, "0x%08X");
    const auto reverse = Reverse(lang, tables[i]);
    std::vector<unsigned> codes, points;
    for (const auto& [code, point] : reverse) {
      codes.push_back(code);
      points.push_back(point);
    }
    PrintArray("std::uint16_t", std::string(lang.array_name) + "PcCodes", codes, 10, "0x%04X");
    PrintArray("std::uint32_t", std::string(lang.array_name) + "CodePoints", points, 8, "0x%05X");
  }
  std::printf("}  // namespace\n\n");
  std::printf("Table ForEmulationType(int emulation_type) {\n  switch (emulation_type) {\n");
  for (const Language& lang : kLanguages) {
    std::printf("    case %d:\n      return {%s, %sPcCodes, %sCodePoints};\n", lang.emulation_type,
                lang.array_name, lang.array_name, lang.array_name);
  }
  std::printf(
      "    default:\n      return {};\n  }\n}\n\n}  // namespace veltrix::double_byte_tables\n"
      "// clang-format on\n");
  return 0;
}
