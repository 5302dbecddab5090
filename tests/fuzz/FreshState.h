#pragma once

// What an earlier input left behind must not show in the next one.

// Buttons, keys, the mouse and what holds them.
void ForgetInput();

// Every element, menu, dialog's script, template and skin.
void ForgetEverything();
