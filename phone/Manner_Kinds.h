#pragma once

#include "phone/Phone_Moods.h"

// What a manner of a message says: what comes in place of the prompt, what the result is, or when it comes.
namespace Handset {

inline bool Is_At_Once(Message_Manner::Kind kind)
{
    return kind == Message_Manner::Kind::Refused_At_Once;
}

inline bool Is_Delay(Message_Manner::Kind kind)
{
    using Kind = Message_Manner::Kind;
    return kind == Kind::Delayed || kind == Kind::At_The_Next_Command || kind == Kind::Behind_The_Next_Prompt ||
           kind == Kind::Behind_The_Next_Message;
}

inline bool Is_Result(Message_Manner::Kind kind)
{
    return !Is_At_Once(kind) && !Is_Delay(kind);
}

} // namespace Handset
