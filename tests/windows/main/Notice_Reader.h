#pragma once

#include "support/In_Windows.h"
#include "windows/main/Long_SMS_Dlg.h"

// Reads every long-message notice that opens, does with it what the test wants, and presses its OK.
class Notice_Reader : public QObject
{
public:
    Notice_Reader() { qApp->installEventFilter(this); }

    static QPushButton& OK_Of(const Long_SMS_Dlg& dialog) { return In<QPushButton>(dialog, "OKPressed"); }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (auto* dialog = qobject_cast<Long_SMS_Dlg*>(watched); dialog && event->type() == QEvent::Show) {
            m_texts.append(dialog->findChild<QLabel*>("_Msg_Val")->text());
            QTimer::singleShot(0, dialog, [this, dialog] {
                if (m_meanwhile)
                    m_meanwhile(*dialog);
                if (dialog->isVisible())
                    OK_Of(*dialog).click();
            });
        }
        return false;
    }

    QStringList m_texts;
    std::function<void(Long_SMS_Dlg&)> m_meanwhile;
};
