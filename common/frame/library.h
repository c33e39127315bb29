// Start-up and shut-down of the library. The loader of the shared library starts it once when
// it is loaded and stops it when it is unloaded; a host or package may start and stop it again.
// Only the first start in a process does the work and only the stop that undoes the last start
// releases the state; the others just count.
#pragma once

namespace mv {

// First start: registers the message "eAdvertise" (wm_eAdvertise), fills MV_OSVersionInfo, reads
// the system and user code pages into MV_SysCodePage / MV_UsrCodePage (throws EConvertError when
// a code page text is not a whole number) and saves the floating-point control word.
void StartLibrary();

// Last stop: releases every string and record of the shared state (not the string lists, which
// FreeStrList / FreeStrList_Quenta free) and puts the start values back.
void StopLibrary();

// How many starts are not yet undone.
int LibraryStartCount();

// The floating-point control word saved by the first start.
unsigned short SavedFpuControlWord();

}  // namespace mv
