#pragma once

class Arguments;

// InputBox: asks the user for a text, which the script that runs the command gets as its user input. The first argument
// is the command's own name. 1: there is no script that could wait for an answer. Else 0.
int RunInputBoxCommand(const Arguments& arguments);
