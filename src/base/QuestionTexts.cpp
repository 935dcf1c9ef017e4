// The fixed texts of every question and note, exactly as the user sees them.
#include "base/QuestionTexts.h"

#include "base/ErrorTable.h"

namespace plovix::questions {

namespace {
const std::string kName(kManagerName);
}

std::string noExtension() {
  return "File has no filename extension.\nDo you want to edit the file anyway?";
}

std::string illegalExtension(const std::string& extension) {
  return "Illegal filename  extension (" + extension + ").\n\nDo you want to edit the file anyway?";
}

std::string fileDoesNotExistCreate(const std::string& path) {
  return "File " + path + " does not exist.\nDo you want to create the file?";
}

std::string notWizardGenerated(const std::string& path) {
  return kName + " does not recognize " + path + " as a wizard-generated\n" + "custom modulon variation." +
         "\n\nDo you want to use a wizard to overwrite it?";
}

std::string runVendorScript(const std::string& tool) {
  return "There is a vendor-provided script associated with this plovix plug-in.\nTo run this script will "
         "require " +
         tool + " installed on your system\nand included in your default system path.\n\n" +
         "Do you want to run the associated script?";
}

std::string vendorScriptFailed(const std::string& command, const std::string& tool) {
  return "An error occured when running the associated script\n\n" + command + "\n\n" + "Please make sure " +
         tool + " is installed on\nyour system and it is included in your default path.\n\n" +
         "To rerun the script, please open the created variation \nfile in edit mode and press the Finish "
         "button";
}

std::string cannotExecuteCommand(const std::string& command, const std::string& systemText) {
  return "Cannot execute the command line\n\n" + command + "\n\n" + systemText;
}

std::string renamedVariation(const std::string& fileTitle, const std::string& newName) {
  return "Variation file name (" + fileTitle +
         ") is identical with the name of one of its sub-components.\n\n" + kName +
         " will rename the variation to \"" + newName + "\" to prevent compilation errors";
}

std::string thdlFallback() {
  return "Modulon requires two-dimensional ports which are not currently supported in VHDL or Verilog "
         "HDL.\n\n"
         "Do you want to create an THDL version of the modulon instead?";
}

std::string sameNameFiles(int count, const std::string& list) {
  const std::string tail =
      "\nThis may create a conflict of design files and/or lead to undesirable side\neffects."
      "\n\nIs it OK to continue file generation?";
  if (count == 1) {
    return "The following design file, which has identical name but a different extension \nfrom the "
           "specified "
           "variation file, already exists in the working directory:\n\n" +
           list + tail;
  }
  return "The following design files, which have identical names but different extensions \nfrom the "
         "specified "
         "variation file, already exist in the working directory:\n\n" +
         list + tail;
}

std::string existingOutputsHeader() {
  return "The following file(s) already exist:\n\n";
}

std::string symbolUpdateNote() {
  return "\nNote: You may need to update the instantiation\nof this function, including its symbol or VHDL \n"
         "Component Declaration, to reflect the changes. \nChoose 'Update Symbol' (Symbol menu) \n"
         "to update a symbol in the Graphic Editor.";
}

std::string overwriteExistingOutputs(const std::string& list) {
  return existingOutputsHeader() + list + "\n\nOK to overwrite the file(s)?";
}

std::string createDirectory(const std::string& directory) {
  return "Directory " + directory + " does not exist.\n\nDo you want to create it?";
}

std::string overwriteFile(const std::string& path) {
  return "File " + path + "\nalready exists. OK to overwrite it?";
}

std::string driveNotReady(const std::string& drive) {
  return "Can't read from drive " + drive + " -- It is not ready";
}

std::string fileDoesNotExistCreateIt(const std::string& path) {
  return "File " + path + " does not exist.\nDo you want to create it?";
}

std::string basedOnOtherModulon(const std::string& path, const std::string& fileModulon,
                                const std::string& chosenModulon) {
  return "File " + path + " is currently based on the\n" + fileModulon +
         " modulon, but you have selected the " + chosenModulon + ".\n\nOK to continue?";
}

std::string xmlParsingError() {
  return "Error in parsing the XML document encountered";
}

std::string qtFrontEndUnavailable(bool usingConsole) {
  return std::string("the Qt front end needs a display and a build with Qt 6; using the ") +
         (usingConsole ? "console" : "batch") + " front end instead";
}

std::string makerNotice() {
  return "plovix is free software; the files it generates are yours to use and share.";
}

std::string invalidInformationBlock(const std::string& line, const std::string& file,
                                    const std::string& message) {
  return "Ignored invalid information block in line " + line + " in file " + file + " -- " + message;
}

std::string invalidSymbolFile(const std::string& path, int line) {
  return "File " + path + " is not a valid symbol file (line " + std::to_string(line) + ").";
}

}  // namespace plovix::questions
