// Edit mode with a CNX file left from an earlier run: the file loses its generation line before the plug-in
// starts from it.
#include "base/Report.h"
#include "base/TextFile.h"
#include "cnx/CnxLineReader.h"
#include "cnx/RetrievalInfo.h"

namespace plovix {

bool stripGenerationLine(UserInterface& ui, const std::string& cnxFilePath) {
  std::string text;
  int errorNumber = 0;
  if (!readTextFile(cnxFilePath, text, errorNumber)) {
    reportFileErrno(ui, errorNumber, cnxFilePath);
    return false;
  }
  TextLineCursor lines(text);
  CnxLine first;
  if (!first.readFrom(lines)) return true;
  if (takeGenerationWord(first) == "INVALID") return true;
  std::string rest;
  rest.reserve(text.size());
  std::string_view line;
  while (lines.next(line)) {
    rest.append(line);
    rest += '\n';
  }
  if (!writeTextFile(cnxFilePath, rest, errorNumber)) reportFileErrno(ui, errorNumber, cnxFilePath);
  return true;
}

}  // namespace plovix
