#pragma once

#include "engine/Delayed_Delivery.h"
#include "engine/Send_Order.h"

class Send_Listener;
class Send_Manner;
class Send_Progress;
class Stop_Flag;

// One walk through the recipient list that submits one SMS per item, in the manner given. Made for one run on a worker
// thread, which is the only user of the device meanwhile. Works from a finished order and knows no window. However it
// ends, the manner has let go of the device, and the progress display has ended and stands still.
class Send_Job
{
public:
    /// Before the first item the stop flag is cleared; set after that, it ends the job before the next item.
    /// All outlive it.
    Send_Job(Send_Order& order, Send_Manner& manner, Send_Progress& progress, Send_Listener& listener, Stop_Flag& stop);

    /// The whole job. What the device throws outside a submission reaches the caller after the clean-up.
    void Send_SMS_Func();

private:
    void Run();
    void Begin_Sending();
    bool Is_Asked_To_Stop() const;
    void Send_Items();
    bool Send_Item(int index);
    void Keep_Records(const QString& number, const QString& message);
    bool Skip_Item(int index, const QString& number);
    void Reload_Exclusions();
    void Pause_If_Due(int index);
    void Finish();
    void Clean_Up();

    Send_Order& m_order;
    Send_Manner& m_manner;
    Send_Progress& m_progress;
    Send_Listener& m_listener;
    Stop_Flag& m_stop;
    bool m_has_error = false;
    QString m_date;                       // of all records of this job, "dd/MM/yyyy"
    Delayed_Delivery::Setting m_delivery; // no batches unless they are requested
    int m_batch_count = 0;                // items handled since the last pause
};
