#ifndef VELTRIX_TESTS_CORE_SETTINGS_TEST_FILES_H_
#define VELTRIX_TESTS_CORE_SETTINGS_TEST_FILES_H_

#include <gtest/gtest.h>

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>
#include <span>
#include <string>
#include <vector>

namespace veltrix::testing {

// A fresh folder under the system's temporary folder, removed with everything in it at the end.
class TempFolder {
 public:
  TempFolder() {
    std::random_device random;
    path_ = std::filesystem::temp_directory_path() /
            ("veltrix-test-" + std::to_string(random()) + std::to_string(random()));
    std::filesystem::create_directories(path_);
  }
  ~TempFolder() {
    std::error_code error;
    std::filesystem::permissions(path_, std::filesystem::perms::owner_all,
                                 std::filesystem::perm_options::add, error);
    std::filesystem::remove_all(path_, error);
  }
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;

  const std::filesystem::path& path() const { return path_; }
  std::string File(const std::string& name) const { return (path_ / name).string(); }

 private:
  std::filesystem::path path_;
};

inline void WriteBytes(const std::string& path, std::span<const std::uint8_t> bytes) {
  std::ofstream out(path, std::ios::binary | std::ios::trunc);
  out.write(reinterpret_cast<const char*>(bytes.data()),
            static_cast<std::streamsize>(bytes.size()));
}

inline std::vector<std::uint8_t> ReadBytes(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  return std::vector<std::uint8_t>(std::istreambuf_iterator<char>(in), {});
}

inline std::string ReadText(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  return std::string(std::istreambuf_iterator<char>(in), {});
}

// Compares `actual` with the golden text file tests/core/golden/<name>. With the environment
// variable VELTRIX_UPDATE_GOLDEN set, (re)writes the file instead, for reviewing in the diff.
inline ::testing::AssertionResult MatchesGolden(const std::string& actual,
                                                const std::string& name) {
  const std::string path = std::string(VELTRIX_SOURCE_DIR) + "/tests/core/golden/" + name;
  if (std::getenv("VELTRIX_UPDATE_GOLDEN")) {
    std::ofstream(path, std::ios::binary) << actual;
    return ::testing::AssertionSuccess();
  }
  const std::string expected = ReadText(path);
  if (expected == actual) return ::testing::AssertionSuccess();
  return ::testing::AssertionFailure() << "differs from " << path << "\n--- expected\n"
                                       << expected << "--- actual\n"
                                       << actual;
}

}  // namespace veltrix::testing

#endif  // VELTRIX_TESTS_CORE_SETTINGS_TEST_FILES_H_
