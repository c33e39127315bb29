// A sample service package of the demo installation. The build makes one package per demo
// service from this file, with the service's name in MV_SERVICE_NAME. It announces the two
// notices every package receives, so that a run of the demo shows when packages are started and
// stopped; other codes belong to the service's forms and are ignored here.
#include <cstdint>
#include <cstdio>

#include "common/services/service_abi.h"

#ifndef MV_SERVICE_NAME
#error "MV_SERVICE_NAME must name the service"
#endif

extern "C" void InitService(int32_t code, const mv_arg* /*args*/, int32_t /*high*/) {
  if (code == MV_SERVICE_START) std::fprintf(stderr, "%s started\n", MV_SERVICE_NAME);
  if (code == MV_SERVICE_STOP) std::fprintf(stderr, "%s stopping\n", MV_SERVICE_NAME);
}
