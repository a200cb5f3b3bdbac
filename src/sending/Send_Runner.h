#pragma once

class MFCSMS;
class Main_Window;
class Send_Progress;

// Starts send jobs, one at a time, each on a worker of its own; sms_thread_var is 1 from the press of Send until the
// job has cleaned up. Owned by the main window, whose end comes after Finish_Workers; interface thread.
class Send_Runner
{
public:
    Send_Runner(Main_Window& window, MFCSMS& session, Send_Progress& progress);

    /// Send was pressed: starts a job, unless one is running. The main window takes no input until the progress window
    /// stands over it or the job has ended.
    void Send_SMS_Btn();

private:
    class Claim;

    void Send_SMS_Thread();

    Main_Window& m_window;
    MFCSMS& m_session;
    Send_Progress& m_progress;
};
