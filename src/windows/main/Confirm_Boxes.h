#pragma once

#include "records/Program_Settings.h"

#include <QObject>

class QCheckBox;
class QWidget;

// The boxes about sending message by message: which of them can be used, and what the person wants remembered of them.
// Works on the main window's own controls; owned by the main window; interface thread.
class Confirm_Boxes : public QObject
{
    Q_OBJECT

public:
    struct Boxes
    {
        QCheckBox* confirm;
        QCheckBox* reports;
        QCheckBox* keep;
        QCheckBox* remember;
        QWidget* more; ///< what holds all but the first, and takes room only while that is ticked
    };
    Confirm_Boxes(const Boxes& boxes, const Program_Settings& settings);

    Confirm_Choices Choices() const;
    /// Sets the boxes to what is remembered, or else unticks them.
    void Put_Back();
    /// Sets the boxes to what they were, unless something is remembered.
    void Take_On(const Confirm_Choices& choices);

private:
    void Show(const Confirm_Choices& choices, bool are_remembered);
    void Choice_Changed();
    void Remember_Changed();
    void Enable();

    Boxes m_boxes;
    Program_Settings m_settings;
};
