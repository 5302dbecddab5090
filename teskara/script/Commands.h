#pragma once

// The commands UI, UIElement, MessageBox and InputBox.
void RegisterCommands();
void RemoveCommands();
