#pragma once

class Found_Port_List;
class MFCSMS;

/// Looks for modem ports and hands each one that can be opened to the list. Blocks while ports are tried: call it on a
/// worker. The list is called on the same thread.
void Search_Phones(MFCSMS& session, Found_Port_List& found);
