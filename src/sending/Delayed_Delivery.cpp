#include "sending/Delayed_Delivery.h"

namespace Delayed_Delivery {

QStringList Batch_Sizes()
{
    return {"1",  "2",   "3",   "4",   "5",   "10",  "15",  "20",  "25",  "50",
            "75", "100", "150", "200", "250", "300", "400", "500", "1000"};
}

QStringList Pause_Choices()
{
    return {"5  Seconds",  "10 Seconds",  "15 Seconds",  "20 Seconds",  "25 Seconds",  "30 Seconds",  "35 Seconds",
            "40 Seconds",  "45 Seconds",  "50 Seconds",  "55 Seconds",  " 1  Minute",  " 2  Minutes", " 3  Minutes",
            " 4  Minutes", " 5  Minutes", " 6  Minutes", " 7  Minutes", " 8  Minutes", " 9  Minutes", "10 Minutes",
            "20 Minutes",  "30 Minutes",  "40 Minutes",  "50 Minutes",  " 1  Hour"};
}

} // namespace Delayed_Delivery
