#pragma once

#include "teskara/element/TeskElement.h"

// The name of a code, as it stands in the program; null: there is no such code.
const char* NameOfNotification(NotificationCode code);

// Codes are smaller.
constexpr u32 NotificationCodeEnd = 64;
