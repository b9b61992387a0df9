#include "shell/about_text.h"

#include "resources/strings.h"

namespace veltrix {

std::string AboutProductLine() {
  return std::string(kAboutProductLine) + "(" + std::string(StringResource(4002)) + ")";
}

std::string AboutRightsLine() { return std::string(StringResource(4003)); }

std::string LicenceText() {
  std::string text;
  for (int id : {8888, 8889, 8890}) text += StringResource(id);
  return text;
}

}  // namespace veltrix
