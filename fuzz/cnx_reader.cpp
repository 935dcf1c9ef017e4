// Fuzzes the CNX reader with arbitrary file contents, and the retrieval-info operations with the same bytes
// as a CNX file and as a variation file. Files go to one scratch directory made at start and removed at exit.
#include <stdlib.h>
#include <unistd.h>

#include <cstdint>
#include <cstdio>
#include <string>
#include <string_view>

#include "base/UserInterface.h"
#include "cnx/CnxReader.h"
#include "cnx/RetrievalInfo.h"

namespace {

class SilentInterface : public plovix::UserInterface {
 public:
  void report(const std::string&) override {}
  bool ask(const std::string&) override { return true; }
};

class ScratchDirectory {
 public:
  ScratchDirectory() {
    const char* base = getenv("TMPDIR");
    std::string pattern =
        std::string(base != nullptr && *base != '\0' ? base : "/tmp") + "/plovix-fuzz-XXXXXX";
    if (mkdtemp(pattern.data()) == nullptr) abort();
    dir_ = pattern + "/";
  }
  ~ScratchDirectory() {
    for (const char* name : {"v.cnx", "v.cnxerr", "v.vhd", "w.cnx", "w.vhd"}) unlink((dir_ + name).c_str());
    rmdir(dir_.c_str());
  }
  std::string path(const char* name) const { return dir_ + name; }

 private:
  std::string dir_;
};

void writeBytes(const std::string& path, std::string_view bytes) {
  std::FILE* file = std::fopen(path.c_str(), "wb");
  if (file == nullptr) abort();
  std::fwrite(bytes.data(), 1, bytes.size(), file);
  std::fclose(file);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  static const ScratchDirectory scratch;
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  SilentInterface ui;

  const std::string cnxPath = scratch.path("v.cnx");
  writeBytes(cnxPath, bytes);
  plovix::CnxReader reader(ui, cnxPath);
  reader.read();
  // The retrieval info always opens with its banner, whatever was read.
  if (plovix::retrievalInfoText(reader.description(), "--").rfind("-- ====", 0) != 0) abort();
  plovix::stripGenerationLine(ui, cnxPath);

  // As a variation file; an odd first byte puts a signature line in front so that the header is examined.
  const std::string signature = size > 0 && (data[0] & 1) != 0 ? "-- modulon wizard: %m%\n" : "";
  writeBytes(scratch.path("w.vhd"), signature + std::string(bytes));
  plovix::extractRetrievalInfo(ui, scratch.path("w.vhd"));
  return 0;
}
