// The questions and notes the system shows, each built from its text in the message table (base/Messages.h).
#pragma once

#include <string>

#include "base/RunOutcome.h"

namespace plovix::questions {

// Run start: the design file name given to the run.
std::string noExtension();
std::string illegalExtension(const std::string& extension);
std::string fileDoesNotExistCreate(const std::string& path);
std::string notWizardGenerated(const std::string& path);

// Plug-in launch and vendor scripts.
std::string runVendorScript(const std::string& tool);
std::string vendorScriptFailed(const std::string& command, const std::string& tool);
std::string cannotExecuteCommand(const std::string& command, const std::string& systemText);

// Output conflict checks.
std::string renamedVariation(const std::string& fileTitle, const std::string& newName);
std::string thdlFallback();
std::string sameNameFiles(int count, const std::string& list);
std::string symbolUpdateNote();
std::string overwriteExistingOutputs(const std::string& list);

// Modulon page.
std::string createDirectory(const std::string& directory);
std::string overwriteFile(const std::string& path);

// Browser page.
std::string driveNotReady(const std::string& drive);
std::string fileDoesNotExistCreateIt(const std::string& path);
std::string basedOnOtherModulon(const std::string& path, const std::string& fileModulon,
                                const std::string& chosenModulon);

// XML reader used without a source or handler.
std::string xmlParsingError();

// The note shown when the Qt front end was asked for but cannot open windows here.
std::string qtFrontEndUnavailable(bool usingConsole);

// The account the plovix command gives at the end of a run: the files written, those not written with the
// reason, and the warnings, each part only when it has lines; empty when nothing was generated.
std::string runSummary(const RunOutcome& outcome);

// The one-line notice of the maker on the action page.
std::string makerNotice();

// Catalog load: an entry's information block that the XML reader rejected, with the reader's message.
std::string invalidInformationBlock(const std::string& line, const std::string& file,
                                    const std::string& message);

// plovix --render-symbol: a symbol file whose text cannot be read, with the first bad line.
std::string invalidSymbolFile(const std::string& path, int line);

}  // namespace plovix::questions
