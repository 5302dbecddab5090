// The smallest program in C that shows an interface. It draws into a grid of characters and prints the grid, so that it
// needs nothing but the toolkit and the C library:
//   minimal_host_c hello.xml Bigger@Hello Quit@Hello
// clicks on the elements of these names, one after the other, and prints what it has drawn after each click.

#include <teskara/host.h>

#include <stdio.h>
#include <string.h>

enum { Columns = 80, Rows = 25, CellWidth = 8, CellHeight = 16, MostWords = 64, WordBytes = 32 };

// One character in UTF-8, with its end.
typedef struct Cell {
    char bytes[5];
} Cell;

typedef struct Program {
    Cell grid[Rows][Columns];
    char words[MostWords][WordBytes]; // of the interface's events; an empty one is free
    int32_t side; // of the box that the program draws below the interface
    bool is_running;
} Program;

// --- Drawing

// From dark to light.
static const char Shades[] = " .:-=+*#%@";

static int cells(int32_t pixels, int32_t cell)
{
    return (int)(pixels / cell);
}

static bool is_within(int32_t at, int32_t from, int32_t to)
{
    return from <= at && at < to;
}

// Fills each cell whose middle lies in the rectangle.
static void draw_rect(void* user, const teskara_rect* rect, uint32_t argb)
{
    Program* program = user;
    const uint32_t light = ((argb >> 16 & 255) * 3 + (argb >> 8 & 255) * 6 + (argb & 255)) / 10;
    const uint32_t alpha = argb >> 24;
    if (alpha < 128)
        return;
    for (int row = 0; row < Rows; ++row) {
        for (int column = 0; column < Columns; ++column) {
            if (!is_within(column * CellWidth + CellWidth / 2, rect->left, rect->right)
                || !is_within(row * CellHeight + CellHeight / 2, rect->top, rect->bottom))
                continue;
            Cell* cell = &program->grid[row][column];
            memset(cell, 0, sizeof *cell);
            cell->bytes[0] = Shades[light * (sizeof Shades - 2) / 255];
        }
    }
}

// Bytes of the character that a text begins with; broken ones count as one byte.
static size_t character_length(const char* text)
{
    size_t length = 1;
    while (length < 4 && (text[length] & 0xc0) == 0x80)
        ++length;
    return length;
}

static int32_t measure_text(void* user, uint32_t font, const char* text)
{
    (void)user;
    (void)font;
    int32_t width = 0;
    for (; *text; text += character_length(text))
        width += CellWidth;
    return width;
}

static void put_character(Program* program, int row, int column, const char* character, size_t length)
{
    if (row < 0 || row >= Rows || column < 0 || column >= Columns)
        return;
    Cell* cell = &program->grid[row][column];
    memset(cell, 0, sizeof *cell);
    memcpy(cell->bytes, character, length);
}

static uint32_t draw_text(
    void* user, uint32_t font, const char* text, const teskara_rect* box, uint32_t argb, uint32_t format)
{
    (void)argb;
    const int32_t width = measure_text(user, font, text);
    const bool is_clipped = (format & TESKARA_TEXT_UNCLIPPED) == 0;
    const uint32_t alignment = format & ~(uint32_t)TESKARA_TEXT_UNCLIPPED;
    int32_t x = box->left;
    if (alignment == TESKARA_TEXT_CENTER)
        x += (box->right - box->left - width) / 2;
    else if (alignment == TESKARA_TEXT_RIGHT)
        x = box->right - width;

    const int row = cells(box->top + CellHeight / 2, CellHeight);
    for (; *text; x += CellWidth) {
        const size_t length = character_length(text);
        if (!is_clipped || is_within(x, box->left, box->right))
            put_character(user, row, cells(x, CellWidth), text, length);
        text += length;
    }
    return (uint32_t)width;
}

static bool display_size(void* user, int32_t* width, int32_t* height)
{
    (void)user;
    *width = Columns * CellWidth;
    *height = Rows * CellHeight;
    return true;
}

static void print_grid(const Program* program)
{
    for (int row = 0; row < Rows; ++row) {
        int end = Columns;
        while (end > 0 && *program->grid[row][end - 1].bytes == ' ')
            --end;
        for (int column = 0; column < end; ++column)
            fputs(program->grid[row][column].bytes, stdout);
        putchar('\n');
    }
}

// --- Scripts: the body of an event is one word that the program knows

static uint32_t compile_atom(void* user, const char* source, uint32_t source_length)
{
    Program* program = user;
    (void)source_length;
    uint32_t length = 0;
    const char* body = teskara_atom_body(source, &length);
    for (uint32_t index = 0; index < MostWords && length > 0 && length < WordBytes; ++index) {
        if (*program->words[index])
            continue;
        memcpy(program->words[index], body, length);
        program->words[index][length] = 0;
        return index + 1;
    }
    return 0;
}

static void release_atom(void* user, uint32_t atom)
{
    Program* program = user;
    *program->words[atom - 1] = 0;
}

static int execute_atom(void* user, uint32_t atom, int argc, const char* const* argv, const teskara_value* self)
{
    Program* program = user;
    const char* word = program->words[atom - 1];
    (void)argc;
    (void)argv;
    (void)self;
    printf("The interface says %s.\n", word);
    if (strcmp(word, "bigger") == 0)
        program->side += 4 * CellWidth;
    else if (strcmp(word, "quit") == 0)
        program->is_running = false;
    return 0;
}

// --- The program

// Draws a box of its own, and the interface on top of it.
static void draw_frame(Program* program)
{
    const teskara_rect everything = {0, 0, Columns * CellWidth, Rows * CellHeight};
    const teskara_rect box = {40, 300 - program->side, 40 + program->side, 300};
    draw_rect(program, &everything, 0xff000000);
    draw_rect(program, &box, 0xffffffff);
    teskara_render();
}

static bool integer_member(const teskara_value* value, const char* member, int32_t* result)
{
    teskara_value found;
    if (teskara_get(value, member, 0, NULL, &found) != TESKARA_DONE)
        return false;
    *result = found.as.integer32;
    return true;
}

// Clicks into the middle of an element. False: there is none of that name, or nothing took the click.
static bool click(const char* name)
{
    teskara_value element;
    int32_t x, y, width, height;
    if (!teskara_element(teskara_find(name), &element) || !integer_member(&element, "AbsoluteX", &x)
        || !integer_member(&element, "AbsoluteY", &y) || !integer_member(&element, "Width", &width)
        || !integer_member(&element, "Height", &height))
        return false;
    teskara_mouse_move(x + width / 2, y + height / 2);
    const bool is_taken = teskara_left_down();
    return teskara_left_up() && is_taken;
}

int main(int argc, char** argv)
{
    static Program program = {.side = 10 * CellWidth, .is_running = true};
    const teskara_host host = {
        .size = sizeof(teskara_host),
        .version = TESKARA_TABLE_VERSION,
        .user = &program,
        .draw_rect = draw_rect,
        .draw_text = draw_text,
        .measure_text = measure_text,
        .display_size = display_size,
        .compile_atom = compile_atom,
        .release_atom = release_atom,
        .execute_atom = execute_atom,
    };
    if (argc < 2) {
        fprintf(stderr, "%s INTERFACE.xml ELEMENT...\n", argv[0]);
        return 2;
    }
    const teskara_answer answer = teskara_start(&host);
    if (answer != TESKARA_OK) {
        fprintf(stderr, "%s\n", teskara_answer_text(answer));
        return 1;
    }

    bool is_good = teskara_load(argv[1], true, NULL);
    draw_frame(&program);
    print_grid(&program);
    for (int index = 2; index < argc && is_good && program.is_running; ++index) {
        is_good = click(argv[index]);
        if (!is_good)
            fprintf(stderr, "%s cannot be clicked.\n", argv[index]);
        draw_frame(&program);
        print_grid(&program);
    }
    teskara_stop();
    return is_good ? 0 : 1;
}
