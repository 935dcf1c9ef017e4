# Writes the installed copy of a catalog (cmake -P): every command line that starts PROGRAM names it by
# PROGRAM_PATH, its path from the catalog's folder, since an install keeps plug-in programs apart from catalogs.
file(READ "${INPUT}" text)
string(REGEX REPLACE "=([ \t]*)${PROGRAM}([ \t\r\n])" "=\\1${PROGRAM_PATH}\\2" text "${text}")
file(WRITE "${OUTPUT}"
  "// Installed copy: each plug-in is named by its path from this folder.\n${text}")
