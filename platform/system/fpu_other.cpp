#include <cfenv>

#include "platform/system/machine.h"

namespace mv::sys {

// Machines without an x87 unit: the rounding mode stands in for the control word, so that a
// saved word can still be put back.
uint16_t GetFpuControlWord() {
  return static_cast<uint16_t>(std::fegetround());
}

void SetFpuControlWord(uint16_t word) {
  std::fesetround(static_cast<int>(word));
}

}  // namespace mv::sys
