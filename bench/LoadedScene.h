#pragma once

#include "bench/NullHost.h"

#include <string>

// The one host of all benchmarks, with the toolkit started on it.
NullHost& StartedHost();

// A file of markup that lasts as long as the object.
class MarkupFile
{
public:
    explicit MarkupFile(const std::string& markup);
    ~MarkupFile();
    MarkupFile(const MarkupFile&) = delete;
    MarkupFile& operator=(const MarkupFile&) = delete;

    // Loads the elements of the file under the screen.
    void Load() const;

private:
    std::string m_Path;
};

// An interface that has been loaded and drawn once, and is dropped with the object.
class LoadedScene
{
public:
    explicit LoadedScene(const std::string& markup);
    ~LoadedScene();
    LoadedScene(const LoadedScene&) = delete;
    LoadedScene& operator=(const LoadedScene&) = delete;
};

// How many elements live at present, the screen left out; for the note of a benchmark.
std::string ElementCount();

// Draws a frame and tells how much the host was given to draw; for the same note.
std::string DrawsOfFrame();
