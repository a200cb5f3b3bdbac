#pragma once

#include "device/Device_Cause.h"
#include "records/Job_Record.h"

#include <memory>
#include <optional>

/// What is left of a confirmed job when it is over.
struct Confirmed_End
{
    std::shared_ptr<const Job_Record> record; ///< what its journal says; none where it has had none

    /// The cause of a refusal that ended the job and was about the kind of message, so that the same text may pass
    /// without that.
    std::optional<Device_Cause> refused_kind;
};
