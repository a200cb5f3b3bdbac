#include "tour/Inbox.h"

#include "tour/Visitor.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <cstdio>

void Collect(Inbox& inbox, const QByteArray& line)
{
    const auto object = QJsonDocument::fromJson(line).object();
    if (object.value("event") == "message")
        inbox.push_back({object.value("number").toString(), object.value("text").toString()});
}

void Expect_Exactly(const Inbox& inbox, const Inbox& written)
{
    if (inbox != written) {
        for (const auto& message : inbox)
            printf("received %s %s\n", qPrintable(message.number), qPrintable(message.text));
        throw Tour_Failed("the phone received something else than was written");
    }
    printf("The phone received exactly the %zu messages that were written.\n", inbox.size());
}
