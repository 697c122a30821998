#pragma once

#include "controls/control.h"
#include "engine/shot_state.h"
#include "numbers/rgb.h"

#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace parabolt {

/// A place on a canvas, in the canvas's own units.
struct Place {
    double x = 0;
    double y = 0;
    friend bool operator==(const Place&, const Place&) = default;
};

inline constexpr double kCanvasText = 165; ///< size of the letters on a canvas, twips

// What can stand on a canvas. Places are in the units of the canvas, pens in pixels of 15 twips
// each, whatever the pixels of the screen.
struct DrawnLine {
    Place from;
    Place to;
    Rgb colour;
    int pen = 1;
    friend bool operator==(const DrawnLine&, const DrawnLine&) = default;
};
struct DrawnCurve {
    std::vector<TrajectoryPoint> points;
    Rgb colour;
    int pen = 1;
    friend bool operator==(const DrawnCurve&, const DrawnCurve&) = default;
};
struct DrawnBox { ///< filled
    Place corner;
    Place size;
    Rgb colour;
    friend bool operator==(const DrawnBox&, const DrawnBox&) = default;
};
struct DrawnCircle { ///< outline; the radius is in x units
    Place centre;
    double radius = 0;
    Rgb colour;
    int pen = 1;
    friend bool operator==(const DrawnCircle&, const DrawnCircle&) = default;
};
struct DrawnText { ///< top left corner at the place, unless `anchor` says otherwise
    Place place;
    std::string text;
    Rgb colour;
    /// What of the text stands at the place, in shares of its width and height: {0.5, 1} is the
    /// middle of its lower edge.
    Place anchor{};
    std::optional<Rgb> halo{}; ///< a rim around the letters, for a coloured ground
    friend bool operator==(const DrawnText&, const DrawnText&) = default;
};
struct DrawnImage { ///< rows of equal pixels, from the corner on
    Place corner;
    Place size;
    int columns = 1;
    std::vector<Rgb> pixels;
    friend bool operator==(const DrawnImage&, const DrawnImage&) = default;
};
using Drawing = std::variant<DrawnLine, DrawnCurve, DrawnBox, DrawnCircle, DrawnText, DrawnImage>;

/// The coordinates of a canvas: its left edge has the x value `left`, its top edge the y value
/// `top`; a negative `height` makes y run upward.
struct CanvasScale {
    double left = 0;
    double top = 0;
    double width = 0;
    double height = 0;
    friend bool operator==(const CanvasScale&, const CanvasScale&) = default;
};

/// A canvas that remembers what was drawn on it, as shapes, until it is erased. A view paints the
/// shapes at its own resolution, on the screen as on paper. Everything drawn is opaque, so what can
/// no longer be seen isn't kept: of equal shapes the last stays, and a filled box takes away the
/// boxes inside it and the texts that start in it.
class PictureBox : public Control {
public:
    PictureBox(ControlSet& form, std::string_view name, Rgb background, Rgb foreground);

    /// Place inside the parent and outer size, in twips.
    struct Geometry {
        double left = 0;
        double top = 0;
        double width = 0;
        double height = 0;
        friend bool operator==(const Geometry&, const Geometry&) = default;
    };
    const Geometry& geometry() const { return geometry_; }
    /// Also lays the canvas's own coordinates in twips from its top left corner.
    void setGeometry(const Geometry& geometry);

    const CanvasScale& scale() const { return scale_; }
    /// Holds for all that is drawn from the last erasing on.
    void setScale(const CanvasScale& scale);

    Rgb background() const { return background_; }
    Rgb foreColor() const { return foreColor_; }
    void setForeColor(Rgb colour) { foreColor_ = colour; }
    /// False, and nothing changes, for a width below 1.
    bool setDrawWidth(int pixels);

    void cls();
    void line(Place from, Place to);
    /// A line through all points, from the first on.
    void curve(std::span<const TrajectoryPoint> points);
    void box(Place corner, Place size, Rgb colour);
    void circle(Place centre, double radius);
    void print(Place place, std::string text);
    /// A text by its anchor, with a rim if one is given.
    void label(Place place, std::string text, Place anchor, std::optional<Rgb> halo = std::nullopt);
    /// Pixels in rows of `columns`, stretched over a rectangle.
    void image(Place corner, Place size, int columns, std::vector<Rgb> pixels);

    const std::vector<Drawing>& drawings() const { return drawings_; }

    /// Width of a text on this canvas, twips: as its view measures it, else a guess on the wide
    /// side.
    double textWidth(std::string_view text) const;
    using MeasureText = std::function<double(std::string_view)>;
    void setTextMeasure(MeasureText measure) { measureText_ = std::move(measure); }

    bool takesFocus() const override { return true; }

private:
    void add(Drawing drawing);

    Geometry geometry_;
    CanvasScale scale_;
    Rgb background_;
    Rgb foreColor_;
    int drawWidth_ = 1;
    std::vector<Drawing> drawings_;
    MeasureText measureText_;
};

/// Draws a chart on an empty canvas that has its size, in twips. The canvas's fore colour is that
/// of axes and texts, of which a line is some 200 twips high.
using DrawChart = std::function<void(PictureBox&)>;

} // namespace parabolt
