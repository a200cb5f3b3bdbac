#pragma once

#include <atomic>

class Found_Port_List;
class MFCSMS;

/// Looks for modem ports and passes each one that can be opened to the list, on the same thread. Blocks while ports are
/// tried: call it on a worker.
void Search_Phones(MFCSMS& session, Found_Port_List& found);

extern std::atomic<int> ph_find_thread; ///< 1 while a device search is running; may be read anywhere
