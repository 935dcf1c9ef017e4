// The bundled modulons' plug-in program: plovix-wizard -m MODULON "OUTPUT" [-n] [-symbol] [NAME=VALUE...]
// [-xR -yB -p2 -hTID], plovix-wizard -m MODULON --describe, plovix-wizard --help.
#include <iostream>
#include <string>
#include <vector>

#include "DialogChoice.h"
#include "ModulonLibrary.h"
#include "WizardRun.h"

int main(int argc, char** argv) {
  const std::vector<std::string> arguments(argv + 1, argv + argc);
  plovix::wizard::DialogChoice chooser;
  return plovix::wizard::runWizard(arguments, plovix::wizard::bundledModulons(), chooser, std::cout,
                                   std::cerr);
}
