#pragma once

// The kinds that only code makes. Each makes the element under test, by the word of its kind or of a class that derives
// from that, with the scripts, the child and the place that markup gives to others.

void MakeFiller(const char* word);
void MakeBlipView(const char* word);
void MakeMenu(const char* word);
void MakeMessageBox(const char* word); // also one that a script opens
void MakeInputBox(const char* word);
