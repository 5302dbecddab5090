#include "teskara/element/TeskEmbeddedScript.h"

#include "teskara/core/BoundedText.h"
#include "teskara/core/DepthScope.h"
#include "teskara/core/HostCalls.h"
#include "teskara/core/Limits.h"
#include "teskara/core/utf8string.h"
#include "teskara/element/ElementWatch.h"
#include "teskara/element/TeskElement.h"
#include "teskara/script/MvTypeVar.h"

#include <new>

namespace {

u32 g_ScriptDepth = 0;

// The host's number of the atom; 0 if the host refused, or if memory ran out.
u32 Compile(const char* text, const char* arguments)
{
    try {
        utf8string source = "atom auto(";
        source += TextOrEmpty(arguments);
        source += ")\n{\n";
        source += text;
        source += "\n}\n";
        return Host::CompileAtom(source);
    } catch (...) {
        return 0;
    }
}

} // namespace

TeskEmbeddedScript* TeskEmbeddedScript::New(TeskElement* element, const char* text, const char* arguments)
{
    if (!element || !text)
        return nullptr;

    const u32 atom = Compile(text, arguments);
    if (!atom)
        return nullptr;

    auto* script = new (std::nothrow) TeskEmbeddedScript;
    if (!script) {
        Host::ReleaseAtom(atom);
        return nullptr;
    }
    script->Atom = atom;
    script->Element = element;
    return script;
}

TeskEmbeddedScript::~TeskEmbeddedScript()
{
    Host::ReleaseAtom(Atom);
}

void TeskEmbeddedScript::Delete()
{
    if (--ReferenceCount == 0)
        delete this;
}

int TeskEmbeddedScript::Execute(TeskElement* element, int argc, char** argv)
{
    return Run(element, argc, argv);
}

int TeskEmbeddedScript::Execute(int argc, char** argv)
{
    return Run(Element, argc, argv);
}

int TeskEmbeddedScript::Run(TeskElement* self, int argc, char** argv)
{
    const DepthScope depth(g_ScriptDepth, Limits::NestedScripts);
    if (!depth.Entered())
        return 0;

    ++ReferenceCount;
    _MvTypeVar reference;
    const ElementWatch watch(self);
    if (self) {
        reference.Type = self->GetMvType();
        reference.Value.Object = self;
    }
    int result = 0;
    if (!self || watch.Exists()) // a kind that is not ours may end by the question
        result = Host::ExecuteAtom(Atom, argc, argv, self ? &reference : nullptr);
    Delete();
    return result;
}
