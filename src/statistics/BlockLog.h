// The engine's five counters: read into the boxes of the Graph panel, which are the program's only
// copy of them, added up, shown, and set back to zero. Nothing is counted here.
#ifndef VANTREL_STATISTICS_BLOCKLOG_H_
#define VANTREL_STATISTICS_BLOCKLOG_H_

#include <array>
#include <cstdint>

#include "program/Program.h"
#include "windows/FrmFrameGraph.h"

namespace vantrel::statistics {

// One counter: its value in the block log, its box, and its row in the detail log.
struct Counter {
  const char* ValueName;
  forms::TextBox windows::FrmFrameGraph::*Box;
  const char* RowKey;
  const char* RowLabel;
  const char* CountKey;
};

// The order of every loop and sum.
inline constexpr auto Counters = std::to_array<Counter>({
    {"Popup", &windows::FrmFrameGraph::txtPop, "P", "Popup Windows", "P1"},
    {"DHTML", &windows::FrmFrameGraph::txtDHTML, "D", "DHTML Fly-Ins", "D1"},
    {"WebDialog", &windows::FrmFrameGraph::txtWebD, "W", "Webpage Dialog", "W1"},
    {"BannerAds", &windows::FrmFrameGraph::txtBanner, "B", "Banners", "B1"},
    {"Flash", &windows::FrmFrameGraph::txtFlash, "F", "Flash Ads", "F1"},
});

// Reads the counters into the boxes and shows their total; nothing if there is no block log. A
// counter that is missing (error 13) or above 32767 (6) leaves the totals as they were, with the
// boxes filled; one of no bytes raises error 5.
void GetBlockLog(program::Program& program);

// The same, and keeps the total as the one at start-up.
void ReadBlockLogAtStart(program::Program& program);

namespace FrmFrameLog {

// The detail log's own routine of that name, which is meant to read nothing: without a block log
// it writes zeros and shows the total of the boxes as they are; with one it does nothing. The same
// errors for a box without a number. A start that finds no block log and can make none therefore
// shows the design texts of the boxes and their total.
void GetBlockLog(program::Program& program);

}  // namespace FrmFrameLog

// The other way round: with a block log writes zeros and shows the total of the boxes.
void ClearBlockLog(program::Program& program);

// The total of the five boxes, cut to 16 bits: it wraps without an error. Errors 13 and 6.
std::int16_t TotalOfBoxes(program::Program& program);

// Puts the total of the boxes into both displays and returns it. The same errors.
std::int16_t ShowTotal(program::Program& program);

}  // namespace vantrel::statistics

#endif  // VANTREL_STATISTICS_BLOCKLOG_H_
