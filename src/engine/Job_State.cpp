#include "engine/Job_State.h"

QString Message_IS;

std::atomic<int> sms_thread_var{0};
std::atomic<bool> Pause_Timer_Running{false};
