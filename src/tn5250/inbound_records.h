#ifndef VELTRIX_TN5250_INBOUND_RECORDS_H_
#define VELTRIX_TN5250_INBOUND_RECORDS_H_

#include <cstdint>
#include <vector>

#include "tn5250/host_context.h"
#include "tn5250/stream_codes.h"

namespace veltrix {

// Field data options of CollectFieldData.
struct FieldDataOptions {
  bool modified_gate = false;  // no field data at all when no field is modified
  bool modified_only = false;
  bool address_order = false;  // 0x11, row + 1, column + 1 before each field
  bool trim = false;           // trailing NUL or blank cells are not sent
  bool nul_as_blank = false;
  bool sign = false;  // a negative signed numeric field sends its last digit with zone 0xD
};

// Builds the records the terminal sends to the host and hands them to the output, which adds
// IAC EOR. The record buffer is kept between records.
class InboundRecords {
 public:
  explicit InboundRecords(HostContext& host);

  // `CollectFieldData`: appends the field data; gives the number of bytes written.
  int CollectFieldData(std::vector<std::uint8_t>& out, const FieldDataOptions& options);
  // `SendAidRecord`.
  void SendAidRecord(std::uint8_t aid);
  // `SendReadImmediate`: 0x72 (alternate false) or 0x83 (alternate true).
  void SendReadImmediate(bool alternate);
  // `SendShortEnter`: the answer to Read Screen and Save Screen.
  void SendShortEnter();
  // `SendQueryReply`.
  void SendQueryReply();

 private:
  template <typename Cell, typename PairAt>
  bool AppendDoubleByteRun(std::vector<std::uint8_t>& out, int& k, int count, const Cell& cell,
                           const PairAt& pair_at) const;
  void StartRecord();
  void FinishRecord();

  HostContext& host_;
  std::vector<std::uint8_t> record_;
  std::vector<std::uint8_t> secret_;  // 1 for each byte of record_ that is a non-display field's
};

}  // namespace veltrix

#endif  // VELTRIX_TN5250_INBOUND_RECORDS_H_
