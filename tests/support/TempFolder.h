// A folder of a test's own, removed with all that is in it.
#pragma once

#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <string_view>

namespace qzbase::tests {

class TempFolder {
 public:
  explicit TempFolder(const std::filesystem::path& pAbove = std::filesystem::temp_directory_path())
      : path_(pAbove / ("qzbase-" + std::to_string(std::random_device()()))) {
    std::filesystem::create_directories(path_);
  }
  ~TempFolder() { std::filesystem::remove_all(path_, ignored_); }
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;

  const std::filesystem::path& Path() const { return path_; }
  // As the library is given it: the folder, a "\" and the rest.
  std::u16string Name(std::u16string_view pRest) const { return (path_.u16string() + u'\\').append(pRest); }

  // Makes a file, and the folders above it.
  void Write(std::u16string_view pName) const {
    std::filesystem::create_directories((path_ / pName).parent_path());
    std::ofstream(path_ / pName) << "x";
  }

 private:
  std::filesystem::path path_;
  std::error_code ignored_;
};

}  // namespace qzbase::tests
