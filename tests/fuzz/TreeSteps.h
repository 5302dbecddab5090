#pragma once

class Decisions;

// The element of the scene: a tree in which four rows and a bit show.
constexpr char TreeMarkup[] =
    "<tree name='tree'><Width>100</Width><Height>56</Height><Font><Size>8</Size></Font><ItemHeight>10</ItemHeight>"
    "<ImageSize>8</ImageSize><IndentPerDepth>6</IndentPerDepth><TextMargin>2</TextMargin><ImageTexture Filename='#a'/>"
    "<ScrollBar><X>r10</X><Width>10</Width><Height>50</Height><Slider><Width>10</Width><Height>50</Height><Vertical/>"
    "</Slider></ScrollBar></tree>";

// Does what the bytes say to it and to its model. Both must agree after every step.
void RunTreeSteps(const char* name, Decisions& bytes);
