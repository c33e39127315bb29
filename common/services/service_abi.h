/* The C interface between the library and its service packages. A service package is a shared
 * library that exports
 *
 *     extern "C" void InitService(int32_t code, const mv_arg* args, int32_t high);
 *
 * where `args` points at `high + 1` tagged arguments (`high` is -1 for none, and `args` may then
 * be null). Code 500 tells a package that the system has started (sent right after it is loaded),
 * code 505 that the host is closing; every other code is agreed between a form and its package.
 * Texts passed in arguments are borrowed for the length of the call only.
 *
 * The host program exports its call-backs "SetMenu", "SetAddonToolBar", "ChangeFolder" and
 * "RefreshFolder" with the mv_host_proc signature, taking tagged arguments in the same way. */
#ifndef MVCOMMON_SERVICE_ABI_H
#define MVCOMMON_SERVICE_ABI_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

typedef enum mv_arg_kind {
  MV_ARG_INT32 = 0,
  MV_ARG_INT64 = 1,
  MV_ARG_DOUBLE = 2,
  MV_ARG_BOOL = 3,
  MV_ARG_TEXT = 4,  /* narrow text, NUL-terminated, in the user's code page */
  MV_ARG_WTEXT = 5, /* UTF-16 text, NUL-terminated */
  MV_ARG_POINTER = 6
} mv_arg_kind;

typedef struct mv_arg {
  int32_t kind; /* an mv_arg_kind */
  union {
    int32_t i32;
    int64_t i64;
    double f64;
    int32_t b; /* 0 false, anything else true */
    const char* text;
    const uint16_t* wtext;
    void* ptr;
  } value;
} mv_arg;

/* A service package's entry point. */
typedef void (*mv_service_entry)(int32_t code, const mv_arg* args, int32_t high);

/* A call-back exported by the host program. */
typedef void (*mv_host_proc)(const mv_arg* args, int32_t high);

/* Command codes the library sends to every package. */
#define MV_SERVICE_START 500
#define MV_SERVICE_STOP 505

#ifdef __cplusplus
}
#endif

#endif /* MVCOMMON_SERVICE_ABI_H */
