#pragma once

#include "plan/Plan_Manner.h"

struct Send_Choices;

/// How a job sends that is begun with these choices. Without a service centre it is the device's own.
Plan_Manner Manner_Of(const Send_Choices& choices, const QString& service_centre = {});
