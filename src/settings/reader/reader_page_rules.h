#ifndef VELTRIX_SETTINGS_READER_READER_PAGE_RULES_H_
#define VELTRIX_SETTINGS_READER_READER_PAGE_RULES_H_

#include <array>
#include <cstdint>
#include <span>
#include <string_view>

#include "settings/document.h"
#include "settings/field.h"
#include "settings/field_binding.h"
#include "settings/reader/option_controls.h"

namespace veltrix {

// Positions of the reader list; the reader type byte stores them as 0, 1 and 4.
enum ReaderPosition : int {
  kLaserCcdReader = 0,  // "1D Laser/CCD Reader": the linear set
  kTwoDReader = 1,      // "2D Reader"
  kLongRangeLaser = 2,  // "1D Long Range Laser"
};

// The reader list position a reader type byte selects (bit 2 wins over bit 0).
int ReaderPositionOf(std::uint8_t reader_type);
// The byte with the reader of `position` in bits 0 and 2, bit 3 cleared, the other bits kept.
std::uint8_t WithReaderPosition(std::uint8_t reader_type, int position);
// The two-dimensional set is in force while bit 0 or bit 2 is set.
bool UsesTwoDSet(std::uint8_t reader_type);

// Choosing another reader in the list stores it in the record at once.
void ChooseReader(Document& doc, int position);

inline constexpr std::array<std::string_view, 4> kTwoDList401Names{"Turn off", "Internal",
                                                                   "External", "Both"};
inline constexpr std::array<std::string_view, 2> kTwoDList402Names{"Turn off", "Turn on"};

// The labels of box 201 and its unit in the "Reader Settings" group (the lists' labels are their
// captions). The terminal names them only for the linear set; the two-dimensional set's are ours.
struct ReaderSettingLabels {
  std::string_view number;
  std::string_view number_unit;
};
inline constexpr ReaderSettingLabels kLinearSettingLabels{"Time out :", "sec"};
inline constexpr ReaderSettingLabels kTwoDSettingLabels{"Reader option 3 :", ""};

// A symbology check box of the page (ids 301-327) and the dialog its "more..." button opens
// (empty when that button is hidden).
struct PageCheckBox {
  int id;
  std::string_view text;
  const FieldDef* field;  // nullptr for the linear set's "EAN128" and 327, handled apart
  std::string_view more_dialog;
};

inline constexpr int kFirstCheckBoxId = 301;
inline constexpr int kPageCheckBoxCount = 27;
// The check boxes the page's rules name, by their two-dimensional captions.
inline constexpr int kEan13CheckBox = 305;
inline constexpr int kBooklandEanCheckBox = 306;  // enabled only while "EAN13" is checked
inline constexpr int kCode11CheckBox = 313;
inline constexpr int kPostalCodesCheckBox = 318;
inline constexpr int kPdf417CheckBox = 322;  // "PDF417" and the boxes after it: 2D only
inline constexpr int kQrCodeCheckBox = 327;  // the linear set has no 27th box

// The check boxes of the linear set (301-326) or of the two-dimensional set (301-327).
std::span<const PageCheckBox> ReaderPageCheckBoxes(bool two_d);

// What the enabling of the symbology marks follows: the reader and the 27 marks.
struct ReaderPageState {
  int reader = kLaserCcdReader;
  std::array<bool, kPageCheckBoxCount> checked{};  // index = id - 301
  // "Bookland EAN" (306) is enabled only while "EAN13" (305) is checked: from the opening of the
  // two-dimensional set, and once 305 was toggled while ReaderType was not 0.
  bool bookland_follows_ean13 = false;
};

// The reader and marks as the record (reader type) and the working blocks hold them.
ReaderPageState FillReaderPageState(const Document& doc);
// Whether "Bookland EAN" follows "EAN13" after the user toggled check box `id` while the record's
// ReaderType byte is `reader_type` (`follows`: whether it did before).
bool BooklandFollowsEan13(bool follows, int id, std::uint8_t reader_type);

// Which check boxes and "more..." buttons the reader in `state` enables: "Code 11", "Postal Codes"
// and "PDF417" to "QR Code" only for "2D Reader"; "Bookland EAN" only while "EAN13" is checked.
bool PageCheckBoxEnabled(const ReaderPageState& state, int id);
bool MoreButtonEnabled(const ReaderPageState& state, int id);

// Only product 3 may change the reader (and open the RFID settings).
bool MayChangeReader(const Document& doc);

// The two lists of "Reader Settings" for the set: their captions, entries and fields.
std::span<const ChoiceControl> ReaderSettingLists(bool two_d);

// The page's controls bound to the fields of the set in use: the reader list ("barcode_reader",
// stored at once), and stored on OK "rfid_reader", the settings ("scan_mode", "read_redundancy",
// "time_out", "aim_duration") and the symbology marks ("symbology_1" to "symbology_27"; the linear
// set's "EAN128" stores 1 when checked, 2 when not). The settings are enabled for the linear set,
// "AIM Duration :" for "1D Long Range Laser".
OwnedBindings ReaderPageBindings(bool two_d);

// The sheet's apply, once the controls are stored: "1D Long Range Laser" clears the marks only
// "2D Reader" has, then both working blocks go into the record.
void ApplyReaderPage(Document& doc);

}  // namespace veltrix

#endif  // VELTRIX_SETTINGS_READER_READER_PAGE_RULES_H_
