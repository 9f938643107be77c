#include "ImportOptions.h"

#include "StructuredPanoramaProperties.h"

void ImportOptions::ChooseLevelLinking(int level)
{
    levelLinking = level;
    if (level == 1)
        stackLinking = 1;
}

void ImportOptions::ChooseStackLinking(int stack)
{
    stackLinking = stack;
    if (stack == 0)
        levelLinking = 0;
}

void ImportOptions::WriteTo(Head head, StructuredPanoramaProperties& record) const
{
    if (OffersOverlap(head))
        record.m_overlap = overlap;
    if (OffersLinking(head)) {
        if (levelLinking != Keep)
            record.m_levelLinking = levelLinking;
        if (stackLinking != Keep)
            record.m_stackLinking = stackLinking;
    }
    record.m_autoDetection = autoDetection;
    record.m_skipOptimization = skipOptimization;
    if (OffersRecordedLocation(head))
        record.m_useRecordedLocation = useRecordedLocation;
    record.m_cleanWrongLinks = cleanWrongLinks;
    if (OffersOutputMode(head))
        record.m_outputMode = outputMode;
}
