#pragma once

#include "tests/unit/hostile/HostileHost.h"
#include "tests/unit/hostile/HostilePlatform.h"

#include <string>

// The files that the scenario loads.
constexpr char ScenarioFile[] = "scene.xml";
constexpr char ScenarioPart[] = "part.xml";

// What stands in them. Every kind that a factory makes is in the scene, under its own word as its name.
std::string ScenarioMarkup();
std::string ScenarioPartMarkup();

// The words of all kinds.
const std::vector<const char*>& ScenarioKinds();

// Files on the disk, which live as long as this.
class ScenarioFiles
{
public:
    ScenarioFiles();
    ~ScenarioFiles();
    ScenarioFiles(const ScenarioFiles&) = delete;
    ScenarioFiles& operator=(const ScenarioFiles&) = delete;

    std::map<std::string, std::string> Paths; // by the name that the toolkit knows

private:
    void Write(const char* name, const std::string& markup);
};

// A day in the life of a program: it starts the toolkit, loads a file with every kind, makes every kind again without
// markup, draws twenty frames and in between does all that a user and a script may do, opens menus and dialogs, loads
// anew, and ends. Each step stands whatever the ones before it have left. What the toolkit throws ends the process.
class Scenario
{
public:
    explicit Scenario(const ScenarioFiles& files);
    ~Scenario();

    void Start() noexcept;
    void Play() noexcept;

    // Deletes all elements. Then what the host lent has come back, but for what is in the way of it.
    void Clear() noexcept;

    // Starts anew and loads the file again. False: an element of it is missing.
    bool Recover() noexcept;
    void ShutDown() noexcept;

    HostileHost Host;
    HostilePlatform System;
    bool EndsEarly = false; // with the step that is being played
};
