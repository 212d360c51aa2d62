#pragma once

#include "stats/export/StatsDocument.h"

#include <functional>
#include <vector>

class QIODevice;
class QPainter;

namespace norvin {

/// A document in pages of A4, dark on white, its texts as texts. On any thread.
class StatsPages final {
public:
    /// Units of the painter in a typographic point. Fonts of whole points would be set on a coarse grid.
    static constexpr int unitsPerPoint = 10;
    /// In units.
    static constexpr int pageWidth = 595 * unitsPerPoint;
    static constexpr int pageHeight = 842 * unitsPerPoint;

    explicit StatsPages(const StatsDocument& document);

    [[nodiscard]] int count() const { return static_cast<int>(m_pages.size()); }
    /// @param page from 0. @param painter its origin is the corner of the page
    void paint(QPainter& painter, int page) const;

private:
    /// What stands together, from edge to edge.
    struct Block {
        double height = 0;
        /// Whether what follows may not begin the next page alone.
        bool keepsNext = false;
        /// @param top where it begins, in units
        std::function<void(QPainter& painter, double top)> paint;
    };
    void add(Block block);
    void addHeader(const StatsDocument& document);
    void addSection(const StatsDocument::Section& section);
    void breakPages();

    QString m_pageFormat;
    QString m_foot;
    std::vector<Block> m_blocks;
    std::vector<std::vector<const Block*>> m_pages;
};

/// Writes the document as PDF. @return whether all of it was drawn; why not, the device says
[[nodiscard]] bool writePdf(const StatsDocument& document, QIODevice& device);

} // namespace norvin
