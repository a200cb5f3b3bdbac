#pragma once

#include <atomic>

class Found_Port_List;
class MFCSMS;

/// Looks for modem ports and hands each one that can be opened to the list. Blocks while ports are tried: call it on a
/// worker. The list is called on the same thread.
void Search_Phones(MFCSMS& session, Found_Port_List& found);

extern std::atomic<int> ph_find_thread; ///< 1 while a device search runs; may be read anywhere
