#pragma once

class Decisions;
class EventHost;

// Gives the host the files of an input: as "part" a small one, under every other name the scene that the bytes describe,
// of elements of any kind that has a factory. Loads what their markup names, unless it is there already.
void SetUpEventScene(EventHost& host, Decisions& bytes);
