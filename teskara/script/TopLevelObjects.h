#pragma once

// The objects UIElement, UserInput and Teskara, with which every reference from a script begins.
void RegisterTopLevelObjects();
void RemoveTopLevelObjects();
