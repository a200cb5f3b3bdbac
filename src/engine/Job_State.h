#pragma once

#include "device/Stop_Flag.h"

#include <QString>
#include <atomic>

// What the composer, the send job and its windows share. The text belongs to the interface thread; the flags may be
// read anywhere.

extern QString Message_IS; ///< the composer's text as last cut or taken

extern std::atomic<int> sms_thread_var;       ///< 1 while a send job runs
extern std::atomic<bool> Pause_Timer_Running; ///< whether a pause is counting down
