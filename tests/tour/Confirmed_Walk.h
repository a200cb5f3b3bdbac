#pragma once

#include "tour/Visitor.h"

// A visitor who has each message confirmed, in a program that is killed in the middle of its job and started again.
class Confirmed_Walk : public Visitor
{
public:
    using Visitor::Visitor;

    /// Returns when the network keeps the job waiting for what became of a message.
    void Send_Until_One_Hangs(const QString& phone_path);
    /// In the program's next start: up to the receipt of the whole job.
    void Go_On_With_The_Job();
};
