#!/usr/bin/env bash
# Seeds one-line faults into the code one at a time, rebuilds, runs the tests and counts the faults the tests
# catch. Usage: scripts/seed-faults.sh [build-dir] [fault-number...]; prints one line per fault and a total.
# The source tree is restored after every fault (and on interrupt); run it on a clean checkout.
set -uo pipefail
cd "$(dirname "$0")/.."
build=${1:-build-faults}
shift $(($# > 0 ? 1 : 0))
only=" $* "

# file <TAB> text as it stands <TAB> text with the fault (the first occurrence is replaced).
faults=$(cat <<'TABLE'
src/entry/RunFlow.cpp	return result == 3 ? -1 : result;	return result == 2 ? -1 : result;
src/entry/RunFlow.cpp	} else if (run.pluginResult == -1) {	} else if (run.pluginResult == 1) {
src/entry/RunFlow.cpp	steps.generateVariationFiles(run, run.outputPath(), false, true);	steps.generateVariationFiles(run, run.outputPath(), true, true);
src/entry/PluginLaunch.cpp	if (quitSignal != 0) raise(quitSignal);	if (false) raise(quitSignal);
src/entry/PluginLaunch.cpp	reportError(ui, Msg::kCannotStartPlugin,	reportError(ui, Msg::kNoLaunchCommandLine,
src/entry/PluginLaunch.cpp	if (run.newFile) line += " -n ";	if (!run.newFile) line += " -n ";
src/entry/ConflictChecks.cpp	if (count == 0) return true;	if (count <= 1) return true;
src/hdl/ThdlDesignText.cpp	end.peerInverted ? "!" : ""	end.peerInverted ? "" : ""
src/hdl/ThdlDesignText.cpp	port.direction == PortDirection::kInput || port.direction == PortDirection::kBidir;	port.direction == PortDirection::kInput;
src/hdl/ThdlDesignText.cpp	"INCLUDE \"%s.inc\";\n"	"INCLUDE \"%s.inc\";"
src/hdl/VhdlAssignments.cpp	formatText("\t%s    <= %s;\n"	formatText("\t%s   <= %s;\n"
src/hdl/VhdlAssignments.cpp	value = "'1'";	value = "'0'";
src/hdl/VhdlInstances.cpp	return formatText("\tGENERIC MAP (\n%s\n\t)", lines.c_str());	return formatText("\tGENERIC MAP (\n%s\n)", lines.c_str());
src/hdl/VerilogFileWriter.cpp	return formatText("%d'H1", bits);	return formatText("%d'H0", bits);
src/hdl/VerilogInstances.cpp	"%s\t\t%s_component.%s = %s"	"%s\t%s_component.%s = %s"
src/hdl/VerilogPorts.cpp	"%s\t%s_inst (\n%s\n\t);\n"	"%s\t%s_inst (\n%s\n);\n"
src/hdl/NetlistBuilder.cpp	if (c.peer.bits.width == c.own.bits.width && c.peer.rows.width == c.own.rows.width) return;	if (c.peer.bits.width == c.own.bits.width || c.peer.rows.width == c.own.rows.width) return;
src/hdl/NetlistBuilder.cpp	if (e.peerIsConstant) e.peer = e.own;	if (false) e.peer = e.own;
src/cnx/CnxReader.cpp	return in.fail(Msg::kCnxUnknownVersionNumber);	return in.fail(Msg::kCnxNoGenerationMode);
src/cnx/CnxReader.cpp	if (!result) reportError(ui_, Msg::kCnxFormatError	if (false) reportError(ui_, Msg::kCnxFormatError
src/cnx/CnxOperands.cpp	if (take()) return fail(Msg::kCnxExtraTokens);	if (false) return fail(Msg::kCnxExtraTokens);
src/cnx/ErrorLog.cpp	"Line %d: %s\n\t\t%s\n\n", lineCounter - 1,	"Line %d: %s\n\t\t%s\n\n", lineCounter,
src/cnx/RetrievalInfo.cpp	if (tokens.extraText) reportError(ui, Msg::kExtraGenerationTokens);	if (false) reportError(ui, Msg::kExtraGenerationTokens);
src/cnx/CnxConnectionMap.cpp	if (descending) return;	if (ascending) return;
src/pages/ModulonSelectionPage.cpp	if (fileName.find_first_of(" \t") != std::string::npos) {	if (fileName.find_first_of(" ") != std::string::npos) {
src/pages/VariationBrowserPage.cpp	reportError(ui, Msg::kModulonNotListed, modulonName);	reportError(ui, Msg::kSpecifyModulonName, modulonName);
src/symbol/DrawnSymbol.cpp	gio_db_set_file_version(instance_, 6);	gio_db_set_file_version(instance_, 5);
src/symbol/DrawnSymbol.cpp	if (line.x1 == line.x2 && line.y1 == line.y2) return;	if (line.x1 == line.x2 || line.y1 == line.y2) return;
src/symbol/SymbolTexts.cpp	if (!text.altText.empty()) gio_text_set_alt_text(	if (false) gio_text_set_alt_text(
src/symbol/AutomaticSymbol.cpp	if (i > 0) text += "\n";	if (i > 1) text += "\n";
src/symbol/AutomaticSymbol.cpp	if (parameter.value != kNoDefaultValue)	if (parameter.value == kNoDefaultValue)
src/catalog/CatalogLoader.cpp	if (line.empty() || startsWith(line, "//")) continue;	if (line.empty() || startsWith(line, "/")) continue;
src/catalog/CatalogVariants.cpp	if (primary->variantNumber == 2) primary->name +=	if (primary->variantNumber == 3) primary->name +=
src/base/OutputKinds.cpp	if (!line.empty() && line.back() == '\r') line.pop_back();	if (false) line.pop_back();
src/base/TextHelpers.cpp	if (w >= -1 && w <= 1) return low;	if (w >= -1 && w < 1) return low;
src/ui/BatchFrontEnd.cpp	if (options_.force) return ask(text);	if (!options_.force) return ask(text);
src/ui/ConsoleBrowserPage.cpp	if (index < static_cast<int>(page.list.items().size())) {	if (index <= static_cast<int>(page.list.items().size())) {
src/ui/qt/QtModulonDialog.cpp	if (languages_[static_cast<size_t>(i)]->isChecked()) page_.languageIndex = i;	if (languages_[static_cast<size_t>(i)]->isChecked()) page_.languageIndex = 0;
TABLE
)

# Paths relative to the checkout in ccache keys, so that the faults' objects are shared between checkouts.
export CCACHE_BASEDIR=$PWD CCACHE_NOHASHDIR=1

# The faults are undone with git, so src/ must have no changes of its own.
git diff --quiet -- src || { echo "src/ has uncommitted changes; commit or stash them first"; exit 1; }
restore() { git checkout -q -- src; }
trap 'restore; exit 130' INT TERM

if [ ! -f "$build/build.ninja" ]; then
  cmake -S . -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DPLOVIX_BUILD_BENCH=OFF \
    -DCMAKE_CXX_COMPILER_LAUNCHER=ccache -DCMAKE_C_COMPILER_LAUNCHER=ccache >/dev/null || exit 1
fi
nice cmake --build "$build" -j2 >/dev/null || { echo "the unchanged tree does not build"; exit 1; }

number=0 caught=0 tried=0
while IFS=$'\t' read -r file old new; do
  number=$((number + 1))
  [ "$only" = "  " ] || [[ "$only" == *" $number "* ]] || continue
  if ! python3 - "$file" "$old" "$new" <<'PY'; then
import sys
path, old, new = sys.argv[1:]
text = open(path, encoding="latin-1").read()
if old not in text:
    sys.exit(1)
open(path, "w", encoding="latin-1").write(text.replace(old, new, 1))
PY
    echo "fault $number: not applied ($file no longer holds the line)"
    continue
  fi
  tried=$((tried + 1))
  if ! nice cmake --build "$build" -j2 >/dev/null 2>&1; then
    verdict="caught (build fails)"
    caught=$((caught + 1))
  elif nice ctest --test-dir "$build" -j2 --timeout 120 --stop-on-failure >/dev/null 2>&1; then
    verdict="MISSED"
  else
    verdict="caught"
    caught=$((caught + 1))
  fi
  echo "fault $number: $verdict  $file: $new"
  restore
done <<<"$faults"
nice cmake --build "$build" -j2 >/dev/null 2>&1
echo "caught $caught of $tried"
