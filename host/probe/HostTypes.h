#pragma once

#include "teskara/script/MvTypeDefinition.h"

#include <array>
#include <memory>
#include <string>
#include <vector>

enum class HostValueKind : u8 { String, Int, Int64, Bool, Float, Point3f, FilePath, Uint, Count };

// One of the host's own script types: how its values become texts, and for containers how texts become values.
class HostValueType : public MvTypeDefinition
{
public:
    explicit HostValueType(HostValueKind kind);

    HostValueKind Kind() const { return m_Kind; }
    bool FromText(MvValue& value, const char* text) override;
    void FreeValue(MvValue& value) override;
    bool ToText(MvValue value, char* buffer, u32 size) override;

    // The whole text, without a limit.
    std::string TextOf(const MvValue& value) const;

private:
    HostValueKind m_Kind;
};

// The host's own types, and those that the toolkit added.
class HostTypes
{
public:
    HostTypes();

    HostValueType& Own(HostValueKind kind) { return *m_Own[static_cast<std::size_t>(kind)]; }

    // Null if it is not one of the host's own.
    const HostValueType* AsOwn(const MvTypeDefinition* type) const;
    MvTypeDefinition* FindOwn(const char* name) const;

    // Among all types.
    MvTypeDefinition* Find(const char* name) const;
    void Add(MvTypeDefinition* type) { m_Added.push_back(type); }
    void Remove(MvTypeDefinition* type) { std::erase(m_Added, type); }

private:
    std::array<std::unique_ptr<HostValueType>, static_cast<std::size_t>(HostValueKind::Count)> m_Own;
    std::vector<MvTypeDefinition*> m_Added;
};
