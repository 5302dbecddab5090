#pragma once

#include <gtest/gtest.h>

#include <functional>

// How often the test that is running has failed so far.
int FailuresSoFar();

// Runs a test's body in a process of its own, which starts where this one stands: the toolkit has one manager, and once
// shut down it stays so. Name the suite "...DeathTest", then it comes before the tests that start the toolkit here.
void InFreshProcess(const std::function<void()>& body);

// Runs the body and ends the process, with status 1 if the body has failed.
[[noreturn]] void RunAndEndProcess(const std::function<void()>& body);
