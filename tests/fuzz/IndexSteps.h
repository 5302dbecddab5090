#pragma once

class Decisions;

// What hosts and scripts do to an index of words while iterators walk it, and to a model of it. An act can be laid in
// wait for the next time that the index asks its type to make or to free a word.
void RunIndexSteps(Decisions& bytes);
