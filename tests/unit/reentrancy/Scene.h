#pragma once

#include "teskara/element/TeskElement.h"

#include <initializer_list>
#include <string>
#include <vector>

struct Subject;
struct _MvTypeVar;

// The file that the scene comes from, and another one to be loaded in the middle of everything.
constexpr char SceneFile[] = "scene.xml";
constexpr char PartFile[] = "part.xml";

// The element under test stands between two siblings, two levels below the screen, and has a child.
constexpr char SelfName[] = "Self@Parent@Grand";
constexpr char ElderName[] = "Elder@Parent@Grand";
constexpr char YoungerName[] = "Younger@Parent@Grand";

// Shows the tooltips of the others. Its script tells a place of its own.
constexpr char TooltipName[] = "Auto Tooltip";
constexpr char TooltipPlace[] = "OnRender of the tooltip";

// So does that of the first child; its other one does not compile.
constexpr char ChildPlace[] = "OnRender of the child";
constexpr char BrokenScript[] = "broken";

// Null once it is gone.
TeskElement* Self();

// What stands in every scene from now on. It must outlive them.
void ChooseSubject(const Subject& subject);

// The markup of a scene: what stands inside the root of its file.
std::string SceneMarkup(const Subject& subject);
std::string PartMarkup();

// --- What drives the scene. All of it stands whatever has become of the scene.

bool LoadScene();

// Does what markup cannot say of the subject, and makes it if only code does.
void PrepareSubject();

// False: there was nothing to delete.
bool Delete(const char* name);
bool DeleteByID(u32 id);

// A child of the element under test. False: there is none of that name.
bool DeletePart(const char* name);

// The ids of its children, or of everything below those, from the innermost on.
std::vector<u32> PartsOfSelf(bool ofParts);

void MoveTo(i32 x, i32 y);
void PressLeft();
void PressRight();

// Brings the mouse over the element under test, which is shown even if it steps aside from the mouse.
void Aim();
void ShowSelf();
bool FocusSelf();
bool FocusYounger();

// Calls a method of an element's script type, as a script does. False: the type does not know it, or there is nobody.
bool Tell(TeskElement* element, const char* method, std::initializer_list<const char*> arguments = {});

// Asks a member of the element under test. False: there is no value.
bool AskSelf(const char* member, _MvTypeVar& result);

// Asks a member of an element's script type for an object and calls a method of that.
bool TellPart(
    TeskElement* element, const char* member, const char* method, std::initializer_list<const char*> arguments);
