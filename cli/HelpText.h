// The plovix command's help: the summary above the options, and the environment, exit statuses and examples
// below them.
#pragma once

namespace plovix::help {

inline constexpr const char* kSummary =
    "plovix: create and edit custom variations of modulons.\n\n"
    "With a design file name (.tdf, .vhd or .v) an existing variation is edited, or a missing one created;\n"
    "without one the wizard starts at its first page. --check, --describe-modulon, --lint, --list-modulons\n"
    "and --render-symbol do something else and exit; they never open a window.";

inline constexpr const char* kUsage =
    "usage: plovix [options] [<design file name>] (plovix --help lists the options)";

inline constexpr const char* kFooter =
    "Environment (the options win over them):\n"
    "  PLOVIX_UI             batch, console or qt (--ui)\n"
    "  PLOVIX_MODULON        the modulon of a batch run (--modulon)\n"
    "  PLOVIX_LANGUAGE       thdl, vhdl or verilog (--language)\n"
    "  PLOVIX_ANSWER         ok or cancel (--answer)\n"
    "  PLOVIX_HDL_TEXT       standard or valid (--hdl-text)\n"
    "  PLOVIX_PROJECT_DIR    the project directory (--project)\n"
    "  PLOVIX_USER_LIB_PATH  user library directories (--user-lib-path)\n"
    "  PLOVIX_LIB_PATH       host library directories (--lib-path)\n"
    "  PLOVIX_TOP_FILE       the project's top design file (--top-file)\n"
    "  PLOVIX_GIO_TRACE      a file the symbol library logs its calls to\n"
    "\n"
    "Exit status:\n"
    "  0  the variation was generated and every file written; --check found no drift; a sub-command "
    "succeeded\n"
    "  1  the run ended without generating; --check found drift or could not check a file; --lint: a tool "
    "rejected a file; a sub-command failed\n"
    "  2  usage error (also an invalid PLOVIX_UI, PLOVIX_ANSWER, PLOVIX_LANGUAGE or PLOVIX_HDL_TEXT "
    "value)\n"
    "  3  the variation was generated but a file of it was not written (an overwrite declined, a write "
    "failed)\n"
    "\n"
    "Examples:\n"
    "  # a new 8-bit up counter in Verilog HDL, in the existing directory rtl\n"
    "  plovix --batch --modulon lpm_counter --plugin-args \"LPM_WIDTH=8 LPM_DIRECTION=UP\" rtl/count8.v\n"
    "  # the settings the counter takes\n"
    "  plovix --describe-modulon lpm_counter\n"
    "  # in CI: fail when a generated file no longer matches its variation\n"
    "  plovix --check rtl\n"
    "  # read a variation with the HDL tools that are installed\n"
    "  plovix --lint rtl/count8.v\n"
    "\n"
    "docs/command-line.md (installed with the documents) and man plovix describe every option.";

}  // namespace plovix::help
