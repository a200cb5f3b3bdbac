#pragma once

/// From now on, what an assistive tool does to a check box or a radio button is a click, as it is by mouse and by
/// keyboard: what follows a click follows then, too. The toolkit's own way changes the tick and no more. Interface
/// thread; a second time changes nothing.
void Tick_Boxes_By_Clicks();
