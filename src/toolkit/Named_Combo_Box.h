#pragma once

#include <QComboBox>

// A combo box that a screen reader calls by its accessible name, whatever it holds. The toolkit's own presents its
// contents as its name. Part of its window; interface thread.
class Named_Combo_Box : public QComboBox
{
    Q_OBJECT

public:
    explicit Named_Combo_Box(QWidget* parent = nullptr);
};
