#pragma once

#include <QComboBox>

// A box with a field to type in, for where no label beside it says what it is for: to a screen reader it goes by its
// accessible name, whatever it holds. The toolkit's own gives its contents for its name. Part of its window; interface
// thread.
class Named_Combo_Box : public QComboBox
{
    Q_OBJECT

public:
    explicit Named_Combo_Box(QWidget* parent = nullptr);
};
