#pragma once

#include "ui/HtmlElements.h"
#include "ui/HtmlFolder.h"
#include "ui/HtmlLimits.h"

#include <QByteArray>
#include <QFont>
#include <QFontMetrics>
#include <QPoint>
#include <QRect>
#include <QSize>
#include <QString>

#include <litehtml/litehtml.h>

#include <algorithm>
#include <chrono>
#include <functional>
#include <vector>

class QPainter;

/// Answers the library's questions and draws what it wants drawn.
class HtmlCanvas final : public litehtml::document_container
{
public:
    using tchar_t = litehtml::tchar_t;
    using tstring = litehtml::tstring;
    using Document = litehtml::document::ptr;
    using Element = litehtml::element::ptr;

    HtmlCanvas(const QString &folder, std::chrono::milliseconds patience)
        : m_folder(folder), m_limits(patience)
    {}
    HtmlCanvas(const HtmlCanvas &) = delete;
    HtmlCanvas &operator=(const HtmlCanvas &) = delete;
    virtual ~HtmlCanvas() = default;

    /// Reads an HTML text (UTF-8) and lays it out; false when it takes too long.
    bool load(const QByteArray &html, QSize viewport);
    /// Lays it out again; false when it takes too long.
    bool layOut(QSize viewport);
    /// Draws what falls into an area, with the corner at `origin`.
    void draw(QPainter &painter, QPoint origin, const QRect &area);
    /// What was read.
    [[nodiscard]] const litehtml::document &document() const { return *m_document; }
    [[nodiscard]] Element root() const { return m_document->root(); }

    litehtml::uint_ptr create_font(const tchar_t *families, int size, int weight,
                                   litehtml::font_style style, unsigned int decoration,
                                   litehtml::font_metrics *metrics) override;
    void delete_font(litehtml::uint_ptr font) override;
    int text_width(const tchar_t *text, litehtml::uint_ptr font) override;
    void draw_text(litehtml::uint_ptr device, const tchar_t *text, litehtml::uint_ptr font,
                   litehtml::web_color color, const litehtml::position &place) override;
    int pt_to_px(int pt) const override;
    int get_default_font_size() const override { return DefaultFontSize; }
    const tchar_t *get_default_font_name() const override { return "sans-serif"; }
    void draw_list_marker(litehtml::uint_ptr device, const litehtml::list_marker &marker) override;
    void load_image(const tchar_t *link, const tchar_t *base, bool redraw) override;
    void get_image_size(const tchar_t *link, const tchar_t *base, litehtml::size &size) override;
    void draw_background(litehtml::uint_ptr device, const litehtml::background_paint &bg) override;
    void draw_borders(litehtml::uint_ptr device, const litehtml::borders &borders,
                      const litehtml::position &place, bool root) override;
    void set_caption(const tchar_t * /*caption*/) override {}
    void set_base_url(const tchar_t * /*base*/) override {}
    void link(const Document & /*document*/, const Element & /*element*/) override {}
    void on_anchor_click(const tchar_t * /*address*/, const Element & /*element*/) override {}
    void set_cursor(const tchar_t * /*cursor*/) override {}
    void transform_text(tstring &text, litehtml::text_transform transform) override;
    void import_css(tstring &text, const tstring &link, tstring &base) override;
    void set_clip(const litehtml::position &place, const litehtml::border_radiuses &radii,
                  bool hasX, bool hasY) override;
    void del_clip() override;
    void get_client_rect(litehtml::position &client) const override;
    Element create_element(const tchar_t *tag, const litehtml::string_map & /*attributes*/,
                           const Document &document) override
    {
        return makeElement(tag, document, m_limits, m_alternatives);
    }
    void get_media_features(litehtml::media_features &media) const override;
    void get_language(tstring &language, tstring &culture) const override;
    void split_text(const char *text, const std::function<void(const tchar_t *)> &onWord,
                    const std::function<void(const tchar_t *)> &onSpace) override;

private:
    static constexpr int DefaultFontSize = 16;

    struct Font
    {
        QFont font;
        QFontMetrics metrics;
    };

    // The library keeps a font as a number; 0 is none.
    [[nodiscard]] const Font &fontAt(litehtml::uint_ptr number) const
    {
        return m_fonts.at(std::max<std::size_t>(number, 1) - 1);
    }
    [[nodiscard]] static QSize placeholderSize(const QString &text);
    void drawPlaceholder(const QRect &box, const QString &text);
    void drawPicture(const litehtml::background_paint &bg, const QRect &box);

    HtmlFolder m_folder;
    HtmlLimits m_limits;
    litehtml::context m_context;
    QSize m_viewport;
    QPainter *m_painter = nullptr;
    std::vector<Font> m_fonts;
    PictureTexts m_alternatives;
    Document m_document;
};
