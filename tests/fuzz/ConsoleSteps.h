#pragma once

class Decisions;

// What happens to a console and to a model of it; what is drawn and what is copied are compared too.
void RunConsoleSteps(Decisions& bytes);
void RunBorderedConsoleSteps(Decisions& bytes);
void RunEndlessConsoleSteps(Decisions& bytes);
