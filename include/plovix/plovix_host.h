/* The C interface of libplovixhost.so, the stand-in for the host's closed libraries (HDB, GE, GIO, cpt),
 * usable from C and C++: #include <plovix/plovix_host.h> and link with -lplovixhost (pkg-config plovix). */
#ifndef PLOVIX_HOST_H
#define PLOVIX_HOST_H

#include <stddef.h>

#ifdef __cplusplus
extern "C" {
#endif

#define PLOVIX_HOST_API __attribute__((visibility("default")))

/* HDB: the project database. */
PLOVIX_HOST_API int hrw_get_project_tree_id(void);
PLOVIX_HOST_API int hrw_get_root_dir(int project_id, char* buffer, int capacity);
PLOVIX_HOST_API int hrw_get_full_path_name(int project_id, char* buffer, int capacity);

/* GE: library paths, ';'-separated directory lists (null when there are none). The user library path is
 * PLOVIX_USER_LIB_PATH; the host library path is PLOVIX_LIB_PATH when it is set, else the bundled modulon
 * library. */
PLOVIX_HOST_API const char* ge_get_user_lib_path(void);
PLOVIX_HOST_API const char* ge_get_qelvix_lib_path(void);

/* The folders where the bundled modulon library is looked for, ';'-separated in the order they are tried:
 * share/plovix/modulons beside the install that holds this library, and, for a library in its build tree, the
 * build tree's copy. The first that exists is the default host library path. */
PLOVIX_HOST_API const char* ge_get_bundled_lib_candidates(void);

/* cpt: receives the native-language copy of a design text. 1 when written; 0 with errno set when not. */
PLOVIX_HOST_API int cpt_zpip_write_file(const char* path, const char* text, int flags, int reserved);

/* GIO: the symbol drawing database.
 * Handles: an instance (a drawing) and a record (one element of a drawing) are 16-bit numbers, 0 meaning
 * none. Record types, text types, line looks and orientations are the numbers named below. Points are
 * passed by address. Functions without a value of their own return 1 on success, 0 on failure (an unknown
 * instance or record, a record of another type, a missing argument). Drawing units are pixels of a 96 dpi
 * display. The .sym file format is described in docs/sym-format.md. Setting PLOVIX_GIO_TRACE=FILE appends one
 * line per gio_ call to FILE: the name, the arguments in order and the result, e.g. `gio_rec_create(1, 7) ->
 * 2`. */
/* Record types. */
enum gio_record_type {
  GIO_HORIZONTAL_LINE = 2,
  GIO_VERTICAL_LINE = 3,
  GIO_OTHER_LINE = 4,
  GIO_ARC = 5,
  GIO_CIRCLE = 6,
  GIO_TEXT = 7
};

/* Text types: a symbol's own text, the three pin texts (also the automatic symbol's pin types), the name
 * (macro) text and the parameter (new property) text. */
enum gio_text_type {
  GIO_SYMBOL_TEXT = 1,
  GIO_INPUT_TEXT = 2,
  GIO_OUTPUT_TEXT = 3,
  GIO_BIDIR_TEXT = 4,
  GIO_MACRO_TEXT = 19,
  GIO_NEW_PROP_TEXT = 55
};

/* Line styles and widths, and the orientation of a text. */
enum gio_line_style {
  GIO_SOLID = 0,
  GIO_DOTTED = 1,
  GIO_DENSE = 2,
  GIO_BROKEN = 3,
  GIO_DASHED = 4,
  GIO_BUS = 5
};
enum gio_line_width { GIO_THIN = 0, GIO_THICK = 1 };
enum gio_orientation { GIO_HORIZONTAL = 0, GIO_VERTICAL = 1 };

typedef struct gio_point {
  int x;
  int y;
} gio_point;

/* Filled by the calls that make an instance: code 0 when all went well. An instance may be made and an error
 * reported all the same; the caller then deletes it. */
typedef struct gio_error_context {
  int code;
  char message[128];
} gio_error_context;

/* The automatic symbol: a box with the drawing's name, inputs on the left, outputs and bidirectional pins on
 * the right, and the parameter text below. Pin types: GIO_INPUT_TEXT, GIO_OUTPUT_TEXT, GIO_BIDIR_TEXT; other
 * values are placed with the inputs. The last call lays the symbol out, writes the file and frees the
 * instance. */
PLOVIX_HOST_API short gio_sym_auto_gen_begin(gio_error_context* error, const char* file_name, int reserved);
PLOVIX_HOST_API int gio_sym_add_pin_stub_w_alt_text(const char* alt_text, const char* pin_name, int pin_type,
                                                    short instance);
/* Writes the automatic symbol's file: 1 when written; 0 with errno set when not. */
PLOVIX_HOST_API int gio_sym_auto_gen_sym_w_params_w_alt_text(short instance, const char* parameter_text);

/* Drawings. Kind 1 is a symbol. The drawing name is the file name without directory and extension; the
 * text returned by gio_db_get_drawing_name stays valid until the name changes or the instance is deleted. */
PLOVIX_HOST_API short gio_db_create_instance(int kind, gio_error_context* error, int reserved);
PLOVIX_HOST_API int gio_db_set_drawing_name(short instance, const char* file_name);
PLOVIX_HOST_API int gio_db_set_file_version(short instance, int version);
PLOVIX_HOST_API int gio_db_set_sheet_name(short instance, int sheet_name);
PLOVIX_HOST_API int gio_db_set_modified_flag(short instance, int modified);
PLOVIX_HOST_API int gio_db_set_source_type(short instance, int source_type);
PLOVIX_HOST_API int gio_db_set_source_id(short instance, int source_id);
PLOVIX_HOST_API int gio_db_set_command_status(short instance, int status);
PLOVIX_HOST_API int gio_db_set_unit_mode(short instance, int unit_mode);
PLOVIX_HOST_API int gio_db_set_sheet_size(short instance, const gio_point* size);
PLOVIX_HOST_API const char* gio_db_get_drawing_name(short instance);
/* Writes the drawing's file: 1 when written; 0 with errno set when not. */
PLOVIX_HOST_API int gio_write_drawing(short instance);
PLOVIX_HOST_API int gio_db_delete_instance(short instance, int reserved);

/* Records. A created record belongs to the drawing once it is connected; first and next walk the connected
 * records of one type in the order they were connected. */
PLOVIX_HOST_API short gio_rec_create(short instance, int type);
PLOVIX_HOST_API int gio_rec_connect(short instance, int type, short rec, int reserved);
PLOVIX_HOST_API short gio_rec_first(short instance, int type);
PLOVIX_HOST_API short gio_rec_next(short instance, int type, short rec);
PLOVIX_HOST_API int gio_rec_delete(short instance, int type, short rec);

/* Lines (types 2, 3, 4; the dots also apply to arcs, type 5). Styles: 0 solid, 1 dotted, 2 dense, 3 broken,
 * 4 dashed, 5 bus. Widths: 0 thin, 1 thick. */
PLOVIX_HOST_API int gio_line_set_points(short instance, int type, short rec, const gio_point* first,
                                        const gio_point* second);
PLOVIX_HOST_API int gio_line_set_dots(short instance, int type, short rec, int first_dot, int second_dot);
PLOVIX_HOST_API int gio_line_set_style(short instance, int type, short rec, int style);
PLOVIX_HOST_API int gio_line_set_width(short instance, int type, short rec, int width);

/* Circles and arcs. An arc runs counterclockwise (as seen on the sheet) from its start to its end point. */
PLOVIX_HOST_API int gio_circle_set_coordinates(short instance, short rec, const gio_point* centre,
                                               int radius);
PLOVIX_HOST_API int gio_circle_set_attr_fill(short instance, short rec, int filled);
PLOVIX_HOST_API int gio_arc_set_coordinates(short instance, short rec, const gio_point* centre, int radius,
                                            int first_angle, int second_angle);
PLOVIX_HOST_API int gio_arc_set_points(short instance, short rec, const gio_point* start,
                                       const gio_point* end);

/* Texts (type 7). The start point is the top left corner of the horizontal text; a vertical text
 * (orientation 1) is that box turned a quarter counterclockwise about its centre. Display 0 hides a text, and
 * so does a visible status other than 0. Text types: 55 parameter block, 1 symbol text, 19 name, 2 input,
 * 3 output, 4 bidirectional pin text. A pin stub makes a connected text the name of a pin at `point`. */
PLOVIX_HOST_API int gio_text_set_start_point(short instance, int type, short rec, const gio_point* point);
PLOVIX_HOST_API int gio_text_set_attr_type(short instance, int type, short rec, int text_type);
PLOVIX_HOST_API int gio_text_set_attr_font(short instance, int type, short rec, int font);
PLOVIX_HOST_API int gio_text_set_attr_display(short instance, int type, short rec, int display);
PLOVIX_HOST_API int gio_text_set_attr_edit(short instance, int type, short rec, int edit);
PLOVIX_HOST_API int gio_text_set_attr_color(short instance, int type, short rec, int color);
PLOVIX_HOST_API int gio_text_set_attr_zoom(short instance, int type, short rec, int zoom);
PLOVIX_HOST_API int gio_text_set_orientation(short instance, int type, short rec, int orientation);
PLOVIX_HOST_API int gio_text_set_attr_font_string(short instance, int type, short rec, const char* font);
PLOVIX_HOST_API int gio_text_set_attr_size(short instance, int type, short rec, const gio_point* size);
PLOVIX_HOST_API int gio_text_set_text(short instance, int type, short rec, const char* text);
PLOVIX_HOST_API int gio_text_set_alt_text(short instance, int type, short rec, const char* alt_text);
PLOVIX_HOST_API int gio_obj_set_visible_status(short instance, int type, short rec, int status);
PLOVIX_HOST_API int gio_text_get_attr_type(short instance, int type, short rec);
PLOVIX_HOST_API int gio_text_create_pinstub(short instance, int type, short rec, const gio_point* point,
                                            int reserved);

/* Text measuring on the display, for the symbol builder and the automatic symbol: a fixed resolution and
 * fixed character metrics (host/SymTextMetrics.cpp). `height` is a font height in pixels as fonts are made:
 * negative for the character height, positive for the cell height, 0 for the default. An empty text measures
 * 1 wide and one line high; otherwise the size of the text's characters on one line goes to cx, cy. */
PLOVIX_HOST_API int sym_display_pixels_per_inch(void);
PLOVIX_HOST_API void sym_measure_text(const char* face, int height, const char* text, int* cx, int* cy);

/* The SVG picture of a .sym file. On success returns 1 and a text that sym_free_text releases; on failure
 * returns 0 with the errno of a file that could not be read, or 0 and the number of the first bad line. */
PLOVIX_HOST_API int sym_render_svg(const char* sym_path, char** svg, int* error_number, int* error_line);
/* The same for .sym text held in memory (`size` bytes at `text`): 0 with the first bad line, or with
 * error_line 0 when no memory was left for the picture. */
PLOVIX_HOST_API int sym_render_svg_text(const char* text, size_t size, char** svg, int* error_line);
PLOVIX_HOST_API void sym_free_text(char* text);

/* 1 when the .sym file reads as a symbol laid out by the automatic symbol (gio_sym_auto_gen_*): its name, the
 * box, a stub and a pin text per pin and at most a parameter block, in that order; 0 for a symbol drawn
 * element by element, or a file that cannot be read as a symbol. */
PLOVIX_HOST_API int sym_has_automatic_layout(const char* sym_path);

#ifdef __cplusplus
}
#endif

#endif
