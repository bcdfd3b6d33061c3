#pragma once

#include "datafile/DataFileReader.h"
#include "engine/PopulationGrowth.h"
#include "fuzz/FuzzSupport.h"
#include "model/InitialCalculation.h"
#include "model/Session.h"
#include "reports/CharacterPlots.h"
#include "reports/TitlePage.h"
#include "textio/SilentPrompter.h"

namespace vorlex::fuzz {

/// Reads the bytes as a data file of the given form, as the load does, and
/// then runs what a run without control runs on it over a few days: day 0,
/// the title page and basic information, the projection and the character
/// plots, with the report in memory.
inline int readAndProject(const std::uint8_t* data, std::size_t size, bool withCxj) {
  return fuzzOne([&] {
    SilentPrompter nobody;
    Session session(nobody);
    Model& m = session.model();
    m.SimTime = 20;
    m.SimTimeNext = 21;
    session.flags.WithCxj = withCxj ? "Yes" : "No";
    session.flags.Physogastry = "No";
    session.flags.OnlyTotalFigures = "No";
    session.names.DataFileName = "fuzz.txt";
    session.names.BaseName = "fuzz";
    session.files.attachInput(kDataFile, ItemReader(std::string(textOf(data, size))), "fuzz.txt");
    if (withCxj)
      VorlexAwithCxj(session);
    else
      VorlexA(session);
    session.files.attachOutput(kReportFile, OutputFile::inMemory());
    VorlexBSetStageSurvivalRto1(session);
    VorlexCPrintTitlePageAndBasicInfo(session);
    VorlexDPopulationGrowth(session);
    VorlexEPrintResults(session);
  });
}

} // namespace vorlex::fuzz
