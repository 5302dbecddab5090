#pragma once

#include <string>

// The scene that other toolkits are measured on too: 100 windows side by side on a surface of 9000 by 4600 pixels, each
// with 100 children in rows of five, 10,100 elements in all. Kinds that are not built yet are stood in for: a window
// and a slider by a frame, as is a panel.
namespace ControlScene {

constexpr int Windows = 100;
constexpr int ChildrenOfWindow = 100;
constexpr int Elements = Windows * (ChildrenOfWindow + 1);

// The scene as an interface file.
std::string Markup();

// A thousand texts on one surface, and the 20 characters of one of them in a frame.
constexpr int ChangingTexts = 1000;
std::string TextGridMarkup();

// The same surface of texts with one data sequence each, such as ${Value}; a "#" in it is the number of the text.
std::string SequenceGridMarkup(const std::string& sequence);
std::string ChangingText(int element, int frame);

} // namespace ControlScene
