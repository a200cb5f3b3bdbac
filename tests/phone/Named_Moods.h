// A test names the moods that it means, as in Phone_Moods{.m_silent = true}; the others are the well-mannered phone's.
#pragma once

#include "phone/Phone_Moods.h"

#pragma GCC diagnostic ignored "-Wmissing-field-initializers"
