// A temporary directory for one test, removed with everything in it when the test ends.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace plovix::testing {

class TempDir {
 public:
  TempDir() {
    std::string pattern = (std::filesystem::temp_directory_path() / "plovix-test-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr) std::abort();
    path_ = pattern;
  }
  ~TempDir() {
    std::error_code ignored;
    std::filesystem::permissions(path_, std::filesystem::perms::owner_all, std::filesystem::perm_options::add,
                                 ignored);
    std::filesystem::remove_all(path_, ignored);
  }
  TempDir(const TempDir&) = delete;
  TempDir& operator=(const TempDir&) = delete;

  // The directory with a trailing "/".
  std::string dir() const { return path_.string() + "/"; }
  std::string path(const std::string& name) const { return dir() + name; }

  // Writes bytes exactly as given (no line-end conversion).
  void write(const std::string& name, const std::string& bytes) const {
    const std::filesystem::path target = path_ / name;
    std::filesystem::create_directories(target.parent_path());
    std::ofstream(target, std::ios::binary) << bytes;
  }

  std::string read(const std::string& name) const { return readFile(path(name)); }

  static std::string readFile(const std::string& file) {
    std::ifstream in(file, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
  }

 private:
  std::filesystem::path path_;
};

}  // namespace plovix::testing
