#pragma once

#include <functional>

class Decisions;
class EventHost;
class Platform;

// What a host does to a scene: input, frames, the passing of time, and mischief that its scripts will do. Each step is
// a byte and what the step reads after it. The tree is checked every few steps and at the end.

// The toolkit starts on this host, of all inputs, and on this platform.
void StartOn(EventHost& host, Platform& platform);

// Forgets what an earlier input left behind, and loads the scene that the bytes describe.
void BeginEvents(Decisions& bytes, const std::function<void()>& beforeLoad = nullptr);

void RunEventSteps(Decisions& bytes, const std::function<void()>& beforeEach = nullptr);

// Empties the screen. Nothing may be left but it, and the host must have everything back.
void EndEvents();
