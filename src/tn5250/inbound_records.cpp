#include "tn5250/inbound_records.h"

#include <algorithm>
#include <array>

#include "tn5250/code_tables.h"
#include "tn5250/double_byte.h"

namespace veltrix {

namespace {

constexpr std::array<std::uint8_t, kRecordHeaderLength> kHeader = {
    0x00, 0x00, kRecordType1, kRecordType2, 0x00, 0x00, kVariableHeaderLength,
    0x00, 0x00, kOpcodePutGet};
constexpr std::uint8_t kMinus = '-';
constexpr std::uint8_t kBlank = 0x20;
constexpr std::uint8_t kShiftOut = 0x0E;
constexpr std::uint8_t kShiftIn = 0x0F;
constexpr std::size_t kMaxRecord = 0xFFFF;

// The two READ MDT FIELDS commands differ only in how a NUL in a field is sent.
FieldDataOptions MdtReadOptions(bool nul_as_blank) {
  return {.modified_gate = true,
          .modified_only = true,
          .address_order = true,
          .trim = true,
          .nul_as_blank = nul_as_blank,
          .sign = true};
}

}  // namespace

InboundRecords::InboundRecords(HostContext& host) : host_(host) { record_.reserve(4096); }

void InboundRecords::StartRecord() {
  record_.assign(kHeader.begin(), kHeader.end());
  secret_.clear();
}

void InboundRecords::FinishRecord() {
  // The length field has 16 bits: a record can never be longer than that.
  if (record_.size() > kMaxRecord) record_.resize(kMaxRecord);
  record_[0] = static_cast<std::uint8_t>(record_.size() >> 8);
  record_[1] = static_cast<std::uint8_t>(record_.size());
  if (!secret_.empty()) secret_.resize(record_.size(), 0);
  host_.out.SendRecord(record_, secret_);
}

template <typename Cell, typename PairAt>
bool InboundRecords::AppendDoubleByteRun(std::vector<std::uint8_t>& out, int& k, int count,
                                         const Cell& cell, const PairAt& pair_at) const {
  // Double-byte characters go back as the host wrote them: shift-out, the host's pairs,
  // shift-in, in the cells that hold them. A run without its shift cells (blanks on both
  // sides, inside the field) or with a pair the language cannot convert back stays single bytes.
  int end = k;
  while (end + 1 < count && pair_at(end)) end += 2;
  if (k < 1 || end >= count || cell(k - 1) != kBlank || cell(end) != kBlank) return false;
  std::vector<std::uint8_t> run;
  for (int j = k; j < end; j += 2) {
    std::uint8_t a = cell(j);
    std::uint8_t b = cell(j + 1);
    if (!ConvertDoubleByteToHost(host_.emulation_type, a, b)) return false;
    run.push_back(a);
    run.push_back(b);
  }
  out.back() = kShiftOut;  // the blank before the run
  out.insert(out.end(), run.begin(), run.end());
  out.push_back(kShiftIn);
  k = end;
  return true;
}

int InboundRecords::CollectFieldData(std::vector<std::uint8_t>& out,
                                     const FieldDataOptions& options) {
  const std::size_t start_size = out.size();
  const PresentationSpace& ps = host_.ps;
  const auto records = host_.fields.Records();
  if (options.modified_gate) {
    bool any = false;
    for (const FieldRecord& f : records) any = any || f.IsModified();
    if (!any) return 0;
  }
  for (const FieldRecord& f : records) {
    if (options.modified_only && !f.IsModified()) continue;
    if (options.address_order) {
      out.push_back(0x11);
      out.push_back(static_cast<std::uint8_t>(f.row + 1));
      out.push_back(static_cast<std::uint8_t>(f.column + 1));
    }
    // Cells are walked from the first one through the last, on into the plane's rows below the
    // screen when the field reaches past it; the plane's end stops a field.
    const CellAddress first{f.row, f.column};
    int count = std::max(f.DataLength(), 1);
    const int plane_left = kPlaneRows * ps.Columns() - ps.Linear(first);
    count = std::max(0, std::min(count, plane_left));
    const int base = ps.Linear(first);
    auto cell = [&](int k) {
      const int i = base + k;
      return ps.PlaneCharacter(i / ps.Columns(), i % ps.Columns());
    };
    auto pair_at = [&](int k) {
      const int i = base + k;
      return ps.IsPairStart(i / ps.Columns(), i % ps.Columns());
    };
    if (options.trim) {
      while (count > 1) {
        const std::uint8_t c = cell(count - 1);
        if (c != 0 && c != kBlank) break;
        if (count >= 3 && pair_at(count - 3)) break;  // the shift-in behind a double-byte run
        --count;
      }
    }
    const std::size_t data_start = out.size();
    for (int k = 0; k < count; ++k) {
      if (pair_at(k) && AppendDoubleByteRun(out, k, count, cell, pair_at)) continue;
      std::uint8_t c = cell(k);
      if (options.nul_as_blank && c == 0) c = kBlank;
      out.push_back(DisplayToHost(host_.emulation_type, c));
    }
    if (options.sign && f.IsSignedNumeric() && count > 0 && f.length >= 1) {
      const int sign = ps.Linear(first) + f.length - 1;
      if (ps.PlaneCharacter(sign / ps.Columns(), sign % ps.Columns()) == kMinus) {
        out.back() = static_cast<std::uint8_t>((out.back() & 0x0F) | 0xD0);
      }
    }
    // A non-display field's data (a password) is marked for the session log to mask.
    if ((f.attribute & 0x07) == 0x07 && &out == &record_ && out.size() > data_start) {
      secret_.resize(out.size(), 0);
      std::fill(secret_.begin() + static_cast<std::ptrdiff_t>(data_start), secret_.end(), 1);
    }
  }
  return static_cast<int>(out.size() - start_size);
}

void InboundRecords::SendAidRecord(std::uint8_t aid) {
  host_.SetKeyboardLocked(true);
  PresentationSpace& ps = host_.ps;
  const FieldRecord& current = host_.fields.Current();
  if (current.IsField() &&
      ps.AddressDistance(ps.CursorColumn(), ps.CursorRow(), current.column, current.row) ==
          current.length &&
      ps.Linear(ps.Cursor()) > ps.Linear({current.row, current.column})) {
    CellAddress back = ps.Retreat(ps.Cursor());
    ps.SetCursor(back.row, back.column);
  }
  StartRecord();
  FieldDataOptions options;
  switch (host_.read_mode) {
    case ReadMode::kNone:
      FinishRecord();
      return;
    case ReadMode::kInputFields:
      options = {.trim = true, .nul_as_blank = true, .sign = true};
      break;
    case ReadMode::kMdtFields:
      options = MdtReadOptions(/*nul_as_blank=*/true);
      break;
    case ReadMode::kMdtAlternate:
      options = MdtReadOptions(/*nul_as_blank=*/false);
      break;
  }
  record_.push_back(static_cast<std::uint8_t>(ps.CursorRow() + 1));
  record_.push_back(static_cast<std::uint8_t>(ps.CursorColumn() + 1));
  record_.push_back(aid);
  CollectFieldData(record_, options);
  FinishRecord();
}

void InboundRecords::SendReadImmediate(bool alternate) {
  host_.SetKeyboardLocked(true);
  StartRecord();
  FieldDataOptions options;
  if (alternate) {
    options = {.modified_only = true, .address_order = true, .trim = true};
  } else {
    options = {.nul_as_blank = true};
  }
  CollectFieldData(record_, options);
  FinishRecord();
  host_.SetKeyboardLocked(false);
}

void InboundRecords::SendShortEnter() {
  StartRecord();
  record_.push_back(static_cast<std::uint8_t>(host_.ps.CursorRow() + 1));
  record_.push_back(static_cast<std::uint8_t>(host_.ps.CursorColumn() + 1));
  record_.push_back(kAidEnter);
  FinishRecord();
}

void InboundRecords::SendQueryReply() {
  static constexpr std::array<std::uint8_t, 61> kReply = {0x00,
                                                          0x00,  // cursor row and column
                                                          kAidStructuredField,
                                                          0x00,
                                                          0x3A,
                                                          0xD9,
                                                          0x70,  // AID, length 58, query reply
                                                          0x80,
                                                          0x06,
                                                          0x00,
                                                          0x01,
                                                          0x00,
                                                          0x00,  //
                                                          0x00,
                                                          0x00,
                                                          0x00,
                                                          0x00,
                                                          0x00,
                                                          0x00,
                                                          0x00,
                                                          0x00,  // sixteen zero bytes
                                                          0x00,
                                                          0x00,
                                                          0x00,
                                                          0x00,
                                                          0x00,
                                                          0x00,
                                                          0x00,
                                                          0x00,  //
                                                          0x01,
                                                          0xF3,
                                                          0xF4,
                                                          0xF7,
                                                          0xF7,  // device type 3477
                                                          0xF0,
                                                          0xC6,
                                                          0xC3,  // model 0FC
                                                          0x02,
                                                          0x00,
                                                          0x00,
                                                          0x01,
                                                          0x01,
                                                          0x01,
                                                          0x01,
                                                          0x01,  //
                                                          0x00,
                                                          0x00,
                                                          0x00,
                                                          0x00,
                                                          0x63,
                                                          0x31,  //
                                                          0x00,
                                                          0x00,
                                                          0x00,
                                                          0x00,
                                                          0x00,
                                                          0x00,
                                                          0x00,
                                                          0x00,
                                                          0x00,
                                                          0x00};
  StartRecord();
  record_.insert(record_.end(), kReply.begin(), kReply.end());
  FinishRecord();
}

}  // namespace veltrix
