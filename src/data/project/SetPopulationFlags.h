#pragma once

/// Sets gbTVPopulation and gbPostCodePopulation: whether the system map database holds any population figure of TV
/// regions and of postcode districts. A flag whose table cannot be read keeps its value; the error is logged.
void SetPopulationFlags();
