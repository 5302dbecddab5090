#pragma once

class Arguments;

// MessageBox: shows a text with a button or two. A script gets the answer as its user input; from elsewhere there is
// one box, titled "Alert". The first argument is the command's own name. Always 0.
int RunMessageBoxCommand(const Arguments& arguments);
