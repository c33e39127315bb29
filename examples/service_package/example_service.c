/* A service package: the library loads it by the path the system configuration gives for its
 * service, sends MV_SERVICE_START once it is loaded and MV_SERVICE_STOP when the host closes.
 * Any other code comes from the service's forms with their own arguments; this one prints them. */
#include <inttypes.h>
#include <stdio.h>

#include "common/services/service_abi.h"
#include "mvcommon_version.h"

static void PrintArgument(const mv_arg* arg) {
  switch (arg->kind) {
    case MV_ARG_INT32:
      fprintf(stderr, " %" PRId32, arg->value.i32);
      break;
    case MV_ARG_INT64:
      fprintf(stderr, " %" PRId64, arg->value.i64);
      break;
    case MV_ARG_DOUBLE:
      fprintf(stderr, " %g", arg->value.f64);
      break;
    case MV_ARG_BOOL:
      fprintf(stderr, " %s", arg->value.b ? "true" : "false");
      break;
    case MV_ARG_TEXT:
      fprintf(stderr, " \"%s\"", arg->value.text ? arg->value.text : "");
      break;
    default:
      fprintf(stderr, " <kind %" PRId32 ">", arg->kind);
      break;
  }
}

void InitService(int32_t code, const mv_arg* args, int32_t high) {
  int32_t i;
  if (code == MV_SERVICE_START) {
    fprintf(stderr, "example service started (built with mvcommon %s)\n", MVCOMMON_VERSION_STRING);
    return;
  }
  if (code == MV_SERVICE_STOP) {
    fprintf(stderr, "example service stopping\n");
    return;
  }
  fprintf(stderr, "example service: code %" PRId32, code);
  for (i = 0; i <= high && args; ++i) PrintArgument(&args[i]);
  fprintf(stderr, "\n");
}
