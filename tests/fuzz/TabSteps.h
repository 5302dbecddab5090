#pragma once

class Decisions;

// The elements of the scenes: a control whose tabs can be dragged and one whose tabs cannot.
constexpr char TabControlsMarkup[] =
    "<Template name='strip'><Width>200</Width><Height>100</Height><TabHeight>16</TabHeight></Template>"
    "<tabcontrol name='fixed' Template='strip'/>"
    "<tabcontrol name='draggable' Template='strip'><Draggable/></tabcontrol>";

// Does what the bytes say to one of the two, and to its model. Both must agree after every step.
void RunTabSteps(const char* name, Decisions& bytes);
