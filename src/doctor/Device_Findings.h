#pragma once

#include "doctor/Device_State.h"
#include "doctor/Finding.h"
#include "doctor/Port_Facts.h"

/// What a device's answers mean, in the order in which they are to be looked at. Nothing comes after what rules out all
/// that follows. Pure.
QList<Finding> Findings_About_Device(const Port_Facts& port, const Device_State& state);

/// Those that follow on the device's answer. path is what they are about, or empty.
QList<Finding> Findings_About_Card_And_Network(const QString& path, const Device_State& state);

/// Whether none of them is in the way.
bool Is_In_Order(const QList<Finding>& findings);
