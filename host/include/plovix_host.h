/* The C interface of libplovixhost.so, the stand-in for the host's closed libraries (HDB, GE, GIO, cpt). */
#ifndef PLOVIX_HOST_H
#define PLOVIX_HOST_H

#ifdef __cplusplus
extern "C" {
#endif

#define PLOVIX_HOST_API __attribute__((visibility("default")))

/* HDB: the project database. */
PLOVIX_HOST_API int hrw_get_project_tree_id(void);
PLOVIX_HOST_API int hrw_get_root_dir(int project_id, char* buffer, int capacity);
PLOVIX_HOST_API int hrw_get_full_path_name(int project_id, char* buffer, int capacity);

/* GE: library paths, ';'-separated directory lists (null when there are none). */
PLOVIX_HOST_API const char* ge_get_user_lib_path(void);
PLOVIX_HOST_API const char* ge_get_qelvix_lib_path(void);

/* cpt: receives the native-language copy of a design text. */
PLOVIX_HOST_API int cpt_zpip_write_file(const char* path, const char* text, int flags, int reserved);

#ifdef __cplusplus
}
#endif

#endif
