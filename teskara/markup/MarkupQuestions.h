#pragma once

#include "teskara/core/Export.h"

class XMLNode;

// Hears of every name that markup is asked for, so that tests can hold what is told of markup against what is read of
// it. Only builds with assertions speak of it.
namespace MarkupQuestions {

struct Question {
    XMLNode* Node; // the first of those that are asked
    const char* Name;
    bool OfAttribute;
};

using Listener = void (*)(const Question& question);

// Null: nobody listens.
TESKARA_EXPORT extern Listener g_Listener;

inline void Tell([[maybe_unused]] const Question& question)
{
#ifndef NDEBUG
    if (g_Listener && question.Node)
        g_Listener(question);
#endif
}

} // namespace MarkupQuestions
