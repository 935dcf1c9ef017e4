/* A minimal host in C: loads libvamlet.so with dlopen and checks the attribute record and the name return. It
 * is built in the build tree and, by the install tests, against an installed <plovix/vamlet.h>. */
#include <dlfcn.h>
#include <plovix/vamlet.h>
#include <stdint.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <unistd.h>

typedef vamlet_qlx_attributes_fn AttributesFn;
typedef vamlet_launch_wizard_with_name_return_fn NameReturnFn;
typedef vamlet_launch_wizard_direct_fn DirectFn;

static int failures = 0;
static int passes = 0;

static void check(int ok, const char* what) {
  if (ok) {
    ++passes;
  } else {
    ++failures;
    fprintf(stderr, "FAILED: %s\n", what);
  }
}

static void checkAttributes(AttributesFn attributes) {
  _Alignas(vamlet_host_attributes) unsigned char record[160];
  memset(record, 0xFF, sizeof record);
  check(attributes((vamlet_host_attributes*)record) == 1, "qlx_attributes returns 1");
  uint16_t u16;
  uint32_t u32;
  memcpy(&u16, record + 0, 2);
  check(u16 == 99, "offset 0 holds 99");
  memcpy(&u16, record + 2, 2);
  check(u16 == 1, "offset 2 holds 1");
  memcpy(&u32, record + 4, 4);
  check(u32 == 14, "offset 4 holds 14");
  memcpy(&u32, record + 12, 4);
  check(u32 == 0, "offset 12 holds 0");
  memcpy(&u32, record + 32, 4);
  check(u32 == 0, "offset 32 holds 0");
  memcpy(&u16, record + 36, 2);
  check(u16 == 0x8000, "offset 36 holds 0x8000");
  memcpy(&u16, record + 38, 2);
  check(u16 == 0x8000, "offset 38 holds 0x8000");
  check(memcmp(record + 40, "Wi&zard Manager", 16) == 0, "menu text at offset 40");
  check(memcmp(record + 105, "vamlet", 7) == 0, "module name at offset 105");
  int untouched = 1;
  for (int i = 8; i < 12; ++i) untouched &= record[i] == 0xFF;
  for (int i = 16; i < 32; ++i) untouched &= record[i] == 0xFF;
  for (int i = 56; i < 105; ++i) untouched &= record[i] == 0xFF;
  for (int i = 112; i < 160; ++i) untouched &= record[i] == 0xFF;
  check(untouched, "bytes 8-11, 16-31 and those after the texts keep 0xFF");
}

static void checkNameReturn(NameReturnFn nameReturn, const char* project) {
  /* The action page is cancelled (batch, every answer Cancel): the path is the project directory. */
  const size_t length = strlen(project);
  char buffer[512];

  nameReturn(NULL, 100); /* still performs the run */
  memset(buffer, 'x', sizeof buffer);
  nameReturn(buffer, 0);
  check(buffer[0] == 'x', "size 0 writes nothing");

  memset(buffer, 'x', sizeof buffer);
  nameReturn(buffer, 5);
  check(memcmp(buffer, project, 4) == 0 && buffer[4] == '\0' && buffer[5] == 'x',
        "size 5: four characters and NUL");

  memset(buffer, 'x', sizeof buffer);
  nameReturn(buffer, (uint32_t)length);
  check(memcmp(buffer, project, length - 1) == 0 && buffer[length - 1] == '\0' && buffer[length] == 'x',
        "size equal to the length: all but the last character");

  memset(buffer, 'x', sizeof buffer);
  nameReturn(buffer, (uint32_t)length + 1);
  check(strcmp(buffer, project) == 0 && buffer[length + 1] == 'x', "size one larger: the whole path");
}

int main(int argc, char** argv) {
  if (argc < 2) {
    fprintf(stderr, "usage: exports_host <libvamlet.so>\n");
    return 2;
  }
  char project[] = "/tmp/plovix-host-XXXXXX";
  if (mkdtemp(project) == NULL) return 2;
  char projectDir[64];
  snprintf(projectDir, sizeof projectDir, "%s/", project);
  setenv("PLOVIX_PROJECT_DIR", projectDir, 1);

  void* library = dlopen(argv[1], RTLD_NOW | RTLD_LOCAL);
  if (library == NULL) {
    fprintf(stderr, "cannot load %s: %s\n", argv[1], dlerror());
    return 1;
  }
  AttributesFn attributes = (AttributesFn)dlsym(library, "qlx_attributes");
  NameReturnFn nameReturn = (NameReturnFn)dlsym(library, "vamlet_launch_wizard_with_name_return");
  DirectFn direct = (DirectFn)dlsym(library, "vamlet_launch_wizard_direct");
  check(attributes && nameReturn && direct && dlsym(library, "qlx_entry"), "the four exports are found");
  check(dlsym(library, "_ZN6plovix10ManagerApp8instanceEv") == NULL, "internal symbols stay hidden");
  if (attributes) checkAttributes(attributes);
  if (nameReturn) checkNameReturn(nameReturn, projectDir);

  /* Unloading makes the project directory the working directory. */
  dlclose(library);
  char cwd[512];
  check(getcwd(cwd, sizeof cwd) != NULL && strcmp(cwd, project) == 0,
        "unloading enters the project directory");
  if (chdir("/") != 0) return 2;
  rmdir(project);

  printf("%d passed, %d failed\n", passes, failures);
  return failures == 0 ? 0 : 1;
}
