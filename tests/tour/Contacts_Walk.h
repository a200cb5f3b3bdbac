#pragma once

#include "tour/Visitor.h"

// A visitor with a spreadsheet of three hundred people, each of whom gets a message of their own.
class Contacts_Walk : public Visitor
{
public:
    using Visitor::Visitor;

    /// Five clicks after the message is written: Contacts, the file, Continue, Add to list, Send. has_so_many tells
    /// whether the phone has received so many messages of this list. Takes no longer than a person is told it does.
    void Send_To_People(const std::function<bool(int)>& has_so_many);
};
