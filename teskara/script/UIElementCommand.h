#pragma once

class Arguments;

// UIElement: lists, shows, hides and deletes elements. The first argument is the command's own name. Always 0.
int RunUIElementCommand(const Arguments& arguments);
