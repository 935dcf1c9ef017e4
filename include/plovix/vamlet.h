/* The four functions libvamlet.so exports to a host, and the attribute record the first one fills; C, usable
 * from C and C++. Link with -lvamlet (pkg-config plovix), or load the library with dlopen and look the names
 * up with dlsym (the vamlet_*_fn types below).
 *
 * Every starting function performs one whole manager run before it returns: it shows the manager's pages,
 * starts the modulon's plug-in, waits for it, writes the variation's files and frees what it made. Failures
 * are shown to the user, never returned. Call them from one thread, one at a time. */
#ifndef PLOVIX_VAMLET_H
#define PLOVIX_VAMLET_H

#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

#define VAMLET_API __attribute__((visibility("default")))

/* The host's attribute record. The host owns it and fixes its layout; qlx_attributes writes only the fields
 * below (the numbers are the host's business, the library only writes these constants) and leaves every other
 * byte as the host put it. The offsets are checked at the end of this header. */
typedef struct vamlet_host_attributes {
  uint16_t value_0;          /* offset 0: 99 */
  uint16_t value_2;          /* offset 2: 1 */
  uint32_t value_4;          /* offset 4: 14 */
  uint32_t host_8;           /* offset 8: not written */
  uint32_t value_12;         /* offset 12: 0 */
  unsigned char host_16[16]; /* offsets 16 to 31: not written */
  uint32_t value_32;         /* offset 32: 0 */
  uint16_t value_36;         /* offset 36: 0x8000 */
  uint16_t value_38;         /* offset 38: 0x8000 */
  char menu_text[65];        /* offset 40: "Wi&zard Manager", NUL-terminated (& marks the underlined key) */
  char module_name[23];      /* offset 105: "vamlet", NUL-terminated; the record's end is the host's */
} vamlet_host_attributes;

/* The smallest record qlx_attributes may be given: the module name's 7 bytes end at offset 112. */
#define VAMLET_HOST_ATTRIBUTES_MIN_SIZE 112

/* Fills the record (see above); does not start a run. Returns 1. */
VAMLET_API int32_t qlx_attributes(vamlet_host_attributes* record);

/* One run with no file name: the user chooses to create or edit a variation on the first page. */
VAMLET_API void qlx_entry(void);

/* One run for `file_name` (null or empty: as qlx_entry). An existing variation file whose modulon is known
 * goes straight to its plug-in; a missing one is offered for creation. */
VAMLET_API void vamlet_launch_wizard_direct(const char* file_name);

/* One run with no file name; then the run's output path (directory, base name and extension as the run left
 * them, also after a cancelled run) is copied into `buffer`: whole with its NUL when it is shorter than
 * `size`, else cut to size - 1 characters and a NUL. Nothing is written with a null buffer or a size of 0. */
VAMLET_API void vamlet_launch_wizard_with_name_return(char* buffer, uint32_t size);

/* The four functions' types, for hosts that use dlsym. */
typedef int32_t (*vamlet_qlx_attributes_fn)(vamlet_host_attributes* record);
typedef void (*vamlet_qlx_entry_fn)(void);
typedef void (*vamlet_launch_wizard_direct_fn)(const char* file_name);
typedef void (*vamlet_launch_wizard_with_name_return_fn)(char* buffer, uint32_t size);

#ifdef __cplusplus
}
#define VAMLET_STATIC_ASSERT(condition, text) static_assert(condition, text)
#else
#define VAMLET_STATIC_ASSERT(condition, text) _Static_assert(condition, text)
#endif

VAMLET_STATIC_ASSERT(offsetof(vamlet_host_attributes, value_4) == 4, "offset 4");
VAMLET_STATIC_ASSERT(offsetof(vamlet_host_attributes, value_12) == 12, "offset 12");
VAMLET_STATIC_ASSERT(offsetof(vamlet_host_attributes, value_32) == 32, "offset 32");
VAMLET_STATIC_ASSERT(offsetof(vamlet_host_attributes, value_38) == 38, "offset 38");
VAMLET_STATIC_ASSERT(offsetof(vamlet_host_attributes, menu_text) == 40, "offset 40");
VAMLET_STATIC_ASSERT(offsetof(vamlet_host_attributes, module_name) == 105, "offset 105");
VAMLET_STATIC_ASSERT(sizeof(vamlet_host_attributes) == 128, "record size");

#undef VAMLET_STATIC_ASSERT

#endif
