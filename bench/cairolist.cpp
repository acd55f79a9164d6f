// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <cairo-pdf.h>
#include <cstdio>
#include <cstdlib>

// bench_cairo ROWS FILE: the list of bench_print as a PDF by cairo alone, the peer that it is compared with.
namespace {

constexpr double PageWidth = 595.3;
constexpr double PageHeight = 841.9;
constexpr double LeftMargin = 72;
constexpr double RightMargin = PageWidth - 54;
constexpr double LineHeight = 11.5;

double widthOf(cairo_t *cairo, const char *text)
{
    cairo_text_extents_t extents;
    cairo_text_extents(cairo, text, &extents);
    return extents.x_advance;
}

void showAt(cairo_t *cairo, double x, double y, const char *text)
{
    cairo_move_to(cairo, x, y);
    cairo_show_text(cairo, text);
}

void showRow(cairo_t *cairo, double y, const char *name, const char *born, const char *age)
{
    showAt(cairo, LeftMargin, y, name);
    showAt(cairo, LeftMargin + 342.5 - widthOf(cairo, born) / 2, y, born);
    showAt(cairo, LeftMargin + 456.5 - widthOf(cairo, age), y, age);
}

void beginPage(cairo_t *cairo, int number)
{
    char text[20];
    cairo_select_font_face(cairo, "Arial", CAIRO_FONT_SLANT_NORMAL, CAIRO_FONT_WEIGHT_BOLD);
    showRow(cairo, 81, "Name", "Born", "Age");
    cairo_select_font_face(cairo, "Arial", CAIRO_FONT_SLANT_NORMAL, CAIRO_FONT_WEIGHT_NORMAL);
    std::snprintf(text, sizeof text, "%d", number);
    showAt(cairo, RightMargin - widthOf(cairo, text), PageHeight - 31, text);
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 3) {
        std::fputs("usage: bench_cairo ROWS FILE\n", stderr);
        return 2;
    }
    const int rows = std::atoi(argv[1]);
    cairo_surface_t *surface = cairo_pdf_surface_create(argv[2], PageWidth, PageHeight);
    cairo_pdf_surface_set_metadata(surface, CAIRO_PDF_METADATA_TITLE, "Ages");
    cairo_t *cairo = cairo_create(surface);
    cairo_set_font_size(cairo, 10);
    double y = PageHeight;
    int page = 0;
    for (int i = 0; i < rows; ++i) {
        if (y + LineHeight > PageHeight - 54) {
            if (page > 0)
                cairo_show_page(cairo);
            beginPage(cairo, ++page);
            y = 81;
        }
        y += LineHeight;
        char name[80];
        char born[40];
        char age[20];
        std::snprintf(name, sizeof name, "Müller-Lüdenscheid, Johann Georg %d", i);
        std::snprintf(born, sizeof born, "%02d.%02d.18%d", i % 28 + 1, i % 12 + 1, i % 90 + 10);
        std::snprintf(age, sizeof age, "%d", i % 97);
        showRow(cairo, y, name, born, age);
    }
    cairo_destroy(cairo);
    cairo_surface_finish(surface);
    const cairo_status_t status = cairo_surface_status(surface);
    cairo_surface_destroy(surface);
    if (status != CAIRO_STATUS_SUCCESS) {
        std::fprintf(stderr, "%s\n", cairo_status_to_string(status));
        return 1;
    }
    return 0;
}
