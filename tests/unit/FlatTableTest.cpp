#include "teskara/flat/FlatTable.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

teskara_platform Platform()
{
    teskara_platform table = {};
    table.size = sizeof(teskara_platform);
    table.version = TESKARA_TABLE_VERSION;
    table.tick_count = [](void*) { return uint32_t{7}; };
    return table;
}

// Programs call through their own copy of the header, so an operation stays where it is for ever: new ones come last.
template <class Table, class... Operations> void ExpectOrder(Operations Table::*... operations)
{
    const Table table = {};
    std::size_t expected = sizeof(FlatTableHead);
    const auto expect = [&](const auto& operation) {
        const auto* place = reinterpret_cast<const char*>(&operation);
        EXPECT_EQ(expected, static_cast<std::size_t>(place - reinterpret_cast<const char*>(&table)));
        expected += sizeof(void*);
    };
    (expect(table.*operations), ...);
    EXPECT_EQ(expected, sizeof(Table)) << "an operation is missing here";
}

// As a later version of the toolkit has it.
struct LongerPlatform {
    teskara_platform Known = Platform();
    void (*Further)(void* user) = nullptr;
};

} // namespace

TEST(FlatTable, OperationsOfAHostKeepTheirPlaces)
{
    using Host = teskara_host;
    ExpectOrder(&Host::draw_rect, &Host::draw_texture, &Host::draw_textures, &Host::draw_line, &Host::draw_text,
        &Host::measure_text, &Host::glyph_metrics, &Host::display_size, &Host::create_font, &Host::release_font,
        &Host::load_texture, &Host::texture_size, &Host::release_texture, &Host::locate_file, &Host::find_resource,
        &Host::print_line, &Host::compile_atom, &Host::release_atom, &Host::execute_atom, &Host::execute_atom_for_text,
        &Host::find_atom, &Host::parse_data, &Host::prepare_sequence, &Host::sequence_source, &Host::sequence_text,
        &Host::release_sequence, &Host::sequence_value, &Host::calculate, &Host::add_command, &Host::remove_command,
        &Host::execute_command, &Host::complete_command, &Host::add_object, &Host::remove_object, &Host::add_type,
        &Host::remove_type, &Host::find_type, &Host::register_class, &Host::register_transient_class,
        &Host::register_container_class, &Host::invalidate_object, &Host::invalidate_transient,
        &Host::invalidate_container, &Host::set_type_class, &Host::parse_value, &Host::create_query,
        &Host::evaluate_query, &Host::free_query, &Host::current_script, &Host::save_place, &Host::load_place,
        &Host::key_name, &Host::open_clipboard, &Host::output_console, &Host::select_console);
}

TEST(FlatTable, OperationsOfAPlatformAndATypeKeepTheirPlaces)
{
    using System = teskara_platform;
    ExpectOrder(&System::tick_count, &System::is_key_toggled, &System::to_ascii, &System::ansi_to_wide,
        &System::open_file, &System::file_exists, &System::write_debug, &System::range_failure, &System::open_clipboard,
        &System::close_clipboard, &System::empty_clipboard, &System::set_clipboard_text, &System::clipboard_text);
    using Type = teskara_type_operations;
    ExpectOrder(&Type::text, &Type::get, &Type::call, &Type::index);
}

TEST(FlatTable, IsCopied)
{
    teskara_platform taken = {};
    int something = 0;
    teskara_platform table = Platform();
    table.user = &something;
    EXPECT_EQ(TESKARA_OK, TakeTable(&table, taken));
    EXPECT_EQ(&something, taken.user);
    EXPECT_EQ(7u, taken.tick_count(nullptr));
    EXPECT_EQ(nullptr, taken.open_file);
}

TEST(FlatTable, OfAnOlderProgramEndsEarlier)
{
    teskara_platform taken = Platform();
    teskara_platform table = Platform();
    table.is_key_toggled = [](void*, uint32_t) { return true; };
    table.size = offsetof(teskara_platform, is_key_toggled);
    EXPECT_EQ(TESKARA_OK, TakeTable(&table, taken));
    EXPECT_NE(nullptr, taken.tick_count);
    EXPECT_EQ(nullptr, taken.is_key_toggled) << "what lies behind its end is no part of it";

    table.size = offsetof(teskara_platform, tick_count);
    EXPECT_EQ(TESKARA_OK, TakeTable(&table, taken)) << "no operation at all is a table too";
    EXPECT_EQ(nullptr, taken.tick_count);
}

TEST(FlatTable, OfANewerProgramIsTakenIfItNeedsNothingNew)
{
    teskara_platform taken = {};
    LongerPlatform longer;
    longer.Known.size = sizeof(LongerPlatform);
    EXPECT_EQ(TESKARA_OK, TakeTable(&longer.Known, taken));
    EXPECT_NE(nullptr, taken.tick_count);

    taken = {};
    longer.Further = [](void*) {};
    EXPECT_EQ(TESKARA_TOO_NEW, TakeTable(&longer.Known, taken));
    EXPECT_EQ(nullptr, taken.tick_count) << "a table that is refused leaves no trace";
}

TEST(FlatTable, OfASizeThatNoTableHasIsRefused)
{
    teskara_platform taken = {};
    const auto answerTo = [&taken](std::size_t size) {
        teskara_platform table = Platform();
        table.size = static_cast<uint32_t>(size);
        return TakeTable(&table, taken);
    };
    for (const std::size_t size : {std::size_t{0}, std::size_t{1}, sizeof(FlatTableHead) - 1, sizeof(FlatTableHead) + 1,
             sizeof(teskara_platform) - 1, std::size_t{1} << 31, std::size_t{UINT32_MAX}})
        EXPECT_EQ(TESKARA_WRONG_SIZE, answerTo(size)) << size;
}

TEST(FlatTable, OfAnotherVersionIsRefused)
{
    teskara_platform taken = {};
    for (const uint32_t version : {0u, TESKARA_TABLE_VERSION + 1u, UINT32_MAX}) {
        teskara_platform table = Platform();
        table.version = version;
        EXPECT_EQ(TESKARA_WRONG_VERSION, TakeTable(&table, taken)) << version;
    }
    EXPECT_EQ(TESKARA_NO_TABLE, TakeTable<teskara_platform>(nullptr, taken));
    EXPECT_EQ(nullptr, taken.tick_count);
}
