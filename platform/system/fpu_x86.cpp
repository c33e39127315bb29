// The x87 control word, read and loaded with the processor's own instructions (the same on every
// system of the x86 family).
#include "platform/system/machine.h"

namespace mv::sys {

uint16_t GetFpuControlWord() {
  uint16_t word = 0;
  __asm__ __volatile__("fnstcw %0" : "=m"(word));
  return word;
}

void SetFpuControlWord(uint16_t word) {
  __asm__ __volatile__("fldcw %0" : : "m"(word));
}

}  // namespace mv::sys
