#include "teskara/script/UICommand.h"

#include "teskara/core/CUIManager.h"
#include "teskara/core/HostCalls.h"
#include "teskara/core/Messages.h"
#include "teskara/element/TeskScreen.h"
#include "teskara/script/Arguments.h"

namespace {

constexpr int UIDone = 0;
constexpr int UIFailed = -1;

int Explain(const char* usage, const Arguments& arguments)
{
    Host::PrintLine(usage, arguments.Text(0));
    return UIDone;
}

int FileFailed(const char* file)
{
    Host::PrintLine(Messages::FileFailed, file);
    return UIFailed;
}

int ResetAll(const Arguments&)
{
    g_UIManager.Reset();
    return UIDone;
}

bool LoadFile(const Arguments& arguments, int file, TeskElement* parent, bool replace, TeskSkin* skin)
{
    if (!arguments.Has(file + 1))
        return g_UIManager.LoadInterfaceXML(parent, arguments.Text(file), replace, skin);

    const int newName = arguments.Has(file + 2) ? file + 2 : file + 1;
    return g_UIManager.LoadInterfaceXML(
        parent, arguments.Text(file), arguments.Text(file + 1), arguments.Text(newName), replace, skin);
}

int LoadInterface(const Arguments& arguments, const char* usage, bool replace)
{
    if (arguments.Count() < 3)
        return Explain(usage, arguments);

    int next = 2;
    TeskElement* parent = g_UIManager.Screen;
    if (arguments.IsWord(next, "-parent")) {
        if (arguments.Count() <= 4)
            return Explain(Messages::LoadUsage, arguments); // whichever form it was

        parent = g_UIManager.FindElement(arguments.Text(3));
        next = 4;
        if (!parent) {
            // Names the argument behind the parent's name; scripts know the line in this form.
            Host::PrintLine(Messages::NoParent, arguments.Text(4));
            return UIFailed;
        }
    }

    TeskSkin* skin = nullptr;
    if (arguments.IsWord(next, "-skin")) {
        if (!arguments.Has(next + 2))
            return Explain(usage, arguments);

        skin = g_UIManager.FindSkin(arguments.Text(next + 1));
        next += 2;
    }

    return LoadFile(arguments, next, parent, replace, skin) ? UIDone : FileFailed(arguments.Text(next));
}

int LoadNew(const Arguments& arguments)
{
    return LoadInterface(arguments, Messages::LoadUsage, false);
}

int LoadAgain(const Arguments& arguments)
{
    return LoadInterface(arguments, Messages::ReloadUsage, true);
}

int UnloadFile(const Arguments& arguments)
{
    if (arguments.Count() < 3)
        return Explain(Messages::UnloadUsage, arguments);

    return g_UIManager.UnloadInterfaceXML(arguments.Text(2)) ? UIDone : FileFailed(arguments.Text(2));
}

struct UIFlag {
    const char* Word;
    int (*Run)(const Arguments& arguments);
};

constexpr UIFlag UIFlags[] = {
    {"-reset", ResetAll},
    {"-load", LoadNew},
    {"-reload", LoadAgain},
    {"-unload", UnloadFile},
};

} // namespace

int RunUICommand(const Arguments& arguments)
{
    for (const UIFlag& flag : UIFlags) {
        if (arguments.IsWord(1, flag.Word))
            return flag.Run(arguments);
    }
    return Explain(Messages::UISyntax, arguments);
}
