#pragma once

#include "host/probe/CommandCall.h"
#include "host/probe/HostCommands.h"
#include "host/probe/HostTypes.h"
#include "host/probe/ProbeAtoms.h"
#include "host/probe/ProbeDrawing.h"
#include "host/probe/ProbeFactories.h"
#include "host/probe/ProbeFiles.h"
#include "host/probe/ProbeMenus.h"
#include "host/probe/ProbeOutput.h"
#include "host/probe/ProbePlatform.h"
#include "host/probe/ProbePositions.h"
#include "host/probe/ProbeScripts.h"
#include "host/probe/RecordingHost.h"
#include "host/probe/ScriptReferences.h"
#include "host/probe/SequenceEvaluator.h"
#include "host/probe/TemporaryTexts.h"
#include "teskara/script/MvIndex.h"

#include <map>
#include <memory>
#include <string>
#include <vector>

class TeskElement;

// One run of the toolkit under the recording host. The toolkit has one manager that cannot be started twice, so a
// process has one session, which lives as long as the process.
class ProbeSession
{
public:
    // folder: an empty folder for the files of the run.
    explicit ProbeSession(const std::string& folder);
    ProbeSession(const ProbeSession&) = delete;
    ProbeSession& operator=(const ProbeSession&) = delete;

    // Carries out a command of the transcript and gives what it said. The first one starts the toolkit, unless it is
    // "cold".
    std::vector<std::string> Answer(const CommandLine& command);

    // Carries out a command, whether it comes from the transcript or from an atom.
    void Run(const CommandLine& command);

    // Shuts the toolkit down and writes no more.
    void End();

    // "cold" has to come first.
    bool IsFirstCommand() const { return m_Commands == 1; }

    // The element of that full name, or the one that the atom runs on for "this". Throws a CommandError if there is none.
    TeskElement& Element(const std::string& name);

    // The same; null if there is none.
    TeskElement* FindElement(const std::string& name);

    // The full name of that element; without one, the name as it was given.
    std::string NameOf(const std::string& name);

    ProbeOutput Output;
    HostRefusals Refusals;
    ProbePlatform Platform;
    ProbeFiles Files;
    ProbeDrawing Drawing;
    HostTypes Types;
    ScriptReferences References;
    TemporaryTexts Texts;
    ProbeAtoms Atoms;
    SequenceEvaluator Sequences;
    HostCommands Commands;
    ProbeScripts Scripts;
    ProbePositions Positions;
    ProbeFactories Factories;
    ProbeMenu::Menus Menus;
    std::map<std::string, std::unique_ptr<MvIndex>> Indexes;
    RecordingHost Host;

private:
    void Carry(const CommandLine& command);

    std::size_t m_Commands = 0;
    std::size_t m_Depth = 0;
};
