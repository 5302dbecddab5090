#pragma once

// The lines that the toolkit prints, as formats:
//
//     Host::PrintLine(Messages::NoFile);
//
// Users and scripts know them in these words. Each stands here once, and tools are told of all of them.
#define TESKARA_MESSAGES(MESSAGE)                                                                                      \
    MESSAGE(WrongVersion, "UI Element type '%s' unavailable (version mismatch)")                                       \
    MESSAGE(ScriptFailed, "%s embedded script failed to load")                                                         \
    MESSAGE(NoFactoryToDelete, "WARNING: CANNOT DELETE '%s': Factory '%s' not found")                                  \
    MESSAGE(BadLine, "Bad nLine %d")                                                                                   \
    MESSAGE(NameTaken, "Child named '%s' already exists in parent element '%s'")                                       \
    MESSAGE(CreationFailed, "CreateUIElement failed on '%s' under '%s'")                                               \
    MESSAGE(ChildFailed, "Failed to create %s child %s for %s")                                                        \
    MESSAGE(NoFile, "Could not locate file")                                                                           \
    MESSAGE(ParseFailed, "Failed to parse %s: %s")                                                                     \
    MESSAGE(NoRoot, "Failed to find %s element in %s")                                                                 \
    MESSAGE(NoFactoryByName, "No UI element factory for type '%s'")                                                    \
    MESSAGE(NoFactoryForNode, "No UI element factory for type %s")                                                     \
    MESSAGE(MessageBoxSyntax, "Syntax: %s [-skin <name>] [-template <name>] [-ok|-okcancel|-yesno] <text>")            \
    MESSAGE(FileFailed, "Could not load interface file '%s'")                                                          \
    MESSAGE(NoParent, "Parent element '%s' could not be found")                                                        \
    MESSAGE(InputBoxSyntax, "Syntax: %s [-skin <name>] [-template <name>] <text> [default]")                           \
    MESSAGE(NoScript, "You don't look like a script, or talk like a script...dont try to be one :)")                   \
    MESSAGE(NotInAtoms, "'%s' is not available in atoms")                                                              \
    MESSAGE(DialogFailed, "%s failed")                                                                                 \
    MESSAGE(ElementListHead, "Top-Level UI Elements\n--------------------------")                                      \
    MESSAGE(ElementListLine, "%s '%s' - %s")                                                                           \
    MESSAGE(NoElement, "Could not find '%s'")                                                                          \
    MESSAGE(UIElementSyntax, "Syntax: %s -list|-hide <name>|-show <name>|-toggle <name>|-kill <name>")                 \
    MESSAGE(KillSyntax, "Syntax: %s -kill <element>")                                                                  \
    MESSAGE(HideSyntax, "Syntax: %s -hide <element>")                                                                  \
    MESSAGE(ShowSyntax, "Syntax: %s -show <element>")                                                                  \
    MESSAGE(ToggleSyntax, "Syntax: %s -toggle <element>")                                                              \
    MESSAGE(UISyntax,                                                                                                  \
        "Syntax: %s -reset|-[re]load [-parent <FQN>] [-skin <name>] <filename> [<element name> [new name]]|-unload "   \
        "<filename>")                                                                                                  \
    MESSAGE(LoadUsage, "Usage: %s -load [-parent <FQN>] [-skin <name>] <filename> [<element name> [new name]]")        \
    MESSAGE(ReloadUsage, "Usage: %s -reload [-parent <FQN>] [-skin <name>] <filename> [<element name> [new name]]")    \
    MESSAGE(UnloadUsage, "Usage: %s -unload <filename>")

namespace Messages {

#define TESKARA_NAME_MESSAGE(name, format) inline constexpr char name[] = format;
TESKARA_MESSAGES(TESKARA_NAME_MESSAGE)
#undef TESKARA_NAME_MESSAGE

#define TESKARA_LIST_MESSAGE(name, format) name,
inline constexpr const char* All[] = {TESKARA_MESSAGES(TESKARA_LIST_MESSAGE)};
#undef TESKARA_LIST_MESSAGE

} // namespace Messages

#undef TESKARA_MESSAGES
