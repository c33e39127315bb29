#include <fpu_control.h>

#include "platform/system/machine.h"

namespace mv::sys {

uint16_t GetFpuControlWord() {
  fpu_control_t word = 0;
  _FPU_GETCW(word);
  return static_cast<uint16_t>(word & 0xFFFFu);
}

void SetFpuControlWord(uint16_t word) {
  fpu_control_t value = word;
  _FPU_SETCW(value);
}

}  // namespace mv::sys
