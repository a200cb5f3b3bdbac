#pragma once

#include "phone/Phone_Moods.h"

#include <type_traits>

/// A well-mannered phone but for one thing: Mood(&Phone_Moods::m_silent), Mood(&Phone_Moods::m_hang_up_at, 2).
template <typename Value>
Phone_Moods Mood(Value Phone_Moods::*mood, const std::type_identity_t<Value>& value = true)
{
    Phone_Moods moods;
    moods.*mood = value;
    return moods;
}
