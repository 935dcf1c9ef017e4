// Test fixture for the CNX description: writes a CNX text into a temporary directory, reads it and gives the
// error log and the boxes shown.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "CnxTexts.h"
#include "RecordingInterface.h"
#include "TempDir.h"
#include "base/TextFile.h"
#include "cnx/CnxReader.h"

namespace plovix::testing {

class CnxFixture : public ::testing::Test {
 protected:
  // Writes `text` (line ends as given) to var.cnx and reads it; true when the read succeeded.
  bool read(const std::string& text) {
    temp.write("var.cnx", text);
    return readFile("var.cnx");
  }

  // Reads the file `name` of the temporary directory into `description`.
  bool readFile(const std::string& name) {
    CnxReader reader(ui, temp.path(name));
    const bool read = reader.read();
    description = reader.takeDescription();
    return read;
  }

  // The error log with its line ends read back as "\n".
  std::string log() const { return fromTextMode(temp.read("var.cnxerr")); }

  static std::string banner() {
    return "*******************************************\n"
           "**       CNX File Error Log              **\n"
           "*******************************************\n\n";
  }

  static std::string entry(int line, const std::string& rest, Msg message) {
    return "Line " + std::to_string(line) + ": " + rest + "\n\t\t" + std::string(errorText(message)) + "\n\n";
  }

  std::string error33() const { return reported(Msg::kCnxFormatError, temp.path("var.cnxerr")); }

  TempDir temp;
  RecordingInterface ui;
  CnxDescription description;
};

// The first two lines of a readable CNX file.
inline const std::string kCnxHead = "GENERATION: STANDARD\nVERSION: WM1.0\n";

}  // namespace plovix::testing
