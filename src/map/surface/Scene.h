#pragma once

#include "data/types/Value.h"

#include <cstdint>
#include <string>
#include <vector>

/// A colour of the map surface, 0x00BBGGRR.
using MapColourCode = std::uint32_t;

/// The same colour from and to 0xRRGGBB, the order of the palette. The exchange of red and blue is its own inverse.
constexpr MapColourCode swapRedAndBlue(std::uint32_t colour) {
    return (colour & 0x0000FFU) << 16 | (colour & 0x00FF00U) | (colour & 0xFF0000U) >> 16;
}

/// What the shapes of a coverage are.
enum class CoverageKind { LabelPoints = 0, Polygons = 2 };

/// How the value of LayerSymbolExpression selects a symbol.
enum class SymbolLink { Text = 0, NumericRange = 4 };

/// Font of a label. A size in points; a family that is not installed is replaced by its nearest kin.
struct LabelFont {
    std::string family = "Arial";
    double size = 12.0;
};

/// Where a label stands against its point.
enum class LabelJustification : long { Left = 0, Centre = 1, Right = 2 };
enum class LabelBaseline : long { Bottom = 0, Middle = 1, Top = 2 };

/// How the shapes look that one class of values selects. Plain data.
struct Symbol {
    std::string SymbolName;       ///< text beside the swatch in the key
    Value SymbolNumericRangeFrom; ///< inclusive; a number or a text that reads as one; null matches nothing
    Value SymbolNumericRangeTo;   ///< exclusive; equal to From: that one value
    std::string SymbolStringEquals;
    MapColourCode SymbolPolygonColor = 0xFFFFFF;
    bool SymbolFilled = true; ///< false: only the outline is drawn
    MapColourCode SymbolPolygonBorderColor = 0x9E9A96;
    std::string SymbolPointSymbol = "Dot"; ///< "No Symbol": the label alone
    MapColourCode SymbolPointColor = 0;
    bool SymbolEnableLabels = false;
    LabelFont SymbolLabelFont;
    MapColourCode SymbolLabelColor = 0;
    LabelJustification SymbolLabelJustification = LabelJustification::Centre;
    LabelBaseline SymbolLabelBaseline = LabelBaseline::Middle;
};

/// One layer: where its shapes and attributes come from, and how they are drawn. Plain data; nothing is read until a
/// draw.
struct Layer {
    std::string LayerName;
    int LayerSourceType = 1;       ///< 1: a database, by LayerDataSource
    std::string LayerDataSource;   ///< "Provider=…;Data Source=path;MS Access;pwd=password;"
    std::string LayerCoverageName; ///< table of shapes; empty: the layer draws nothing
    CoverageKind LayerInterpretation = CoverageKind::Polygons;
    std::string LayerJoins;  ///< "shape LEFT JOIN table ON …" or "shape,table,… WHERE …"; empty: the shapes alone
    std::string LayerFields; ///< table.column terms, separated by commas, that the joined row carries
    std::string LayerSymbolExpression; ///< its value selects the symbol; empty: the first symbol for all
    SymbolLink LayerLinkType = SymbolLink::NumericRange;
    std::string LayerLabelSource; ///< its value is the label; empty: no labels
    bool LayerVisible = true;
    bool LayerShownInKey = true;
    bool LayerCheckForOverlap = false; ///< labels that would collide with one already placed are left out
    int LayerFromZoomTrigger = 0;      ///< MapScale from which the layer is drawn
    int LayerToZoomTrigger = 0;        ///< MapScale up to which it is drawn; 0: no upper end
    std::vector<Symbol> symbols = std::vector<Symbol>(1); ///< never empty
};

/// The layers of a map, drawn in this order: a later layer paints over an earlier one. Labels stand above all areas.
struct Scene {
    std::vector<Layer> layers = std::vector<Layer>(1); ///< never empty: layer 0 is the base layer
};

/// Whether a layer is to be drawn when the view is `mapScale` map units wide.
bool isDrawnAt(const Layer& layer, double mapScale);
