#ifndef VELTRIX_SHELL_ABOUT_TEXT_H_
#define VELTRIX_SHELL_ABOUT_TEXT_H_

#include <string>
#include <string_view>

namespace veltrix {

inline constexpr std::string_view kAboutTitle = "The Veltrix";
inline constexpr std::string_view kAboutProductLine = "Veltrix For 5250 ";

// "Veltrix For 5250 (version)": the product line with the version string appended.
std::string AboutProductLine();
// The rights line (string 4003).
std::string AboutRightsLine();
// The licence agreement: strings 8888, 8889 and 8890 joined in this order.
std::string LicenceText();

}  // namespace veltrix

#endif  // VELTRIX_SHELL_ABOUT_TEXT_H_
