#pragma once

struct Finding;
class QWidget;

/// A finding as windows show it: its sign, its sentence and what helps, with the command to copy where there is one.
/// Belongs to the parent; interface thread.
QWidget* Made_Finding_Row(const Finding& finding, QWidget* parent);
