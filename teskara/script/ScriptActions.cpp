#include "teskara/script/ScriptActions.h"

#include <algorithm>

bool Script::ReplaceTexture(TeskElement& owner, const Arguments& arguments, std::unique_ptr<TeskTexture>& texture)
{
    char* texts[] = {const_cast<char*>(arguments.Text(0)), const_cast<char*>(arguments.Text(1))};
    return owner.TextureFromArgs(std::min(arguments.Count(), 2), texts, texture);
}
