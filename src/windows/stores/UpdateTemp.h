#pragma once

#include "toolkit/Form_Dialog.h"

namespace Ui {
class UpdateTemp;
}

// Adds a template or edits one: the templates window fills its fields and runs it, and what is entered goes into that
// window's list. Two fields are hidden: the row being edited, empty for a new template, and the text before editing.
// One shared instance, owned by the templates window; interface thread.
class UpdateTemp : public Form_Dialog<UpdateTemp, Ui::UpdateTemp>
{
    Q_OBJECT

public:
    explicit UpdateTemp(QWidget* parent = nullptr);
    ~UpdateTemp() override;

    void textDidChange();
    void OKPressed();     ///< ends with 1 once the text is in the list
    void CancelPressed(); ///< ends with 0
private:
    void End_With(int code);
};
