#ifndef OMBREL_TEST_COMPILE_FAIL_RECORD_H
#define OMBREL_TEST_COMPILE_FAIL_RECORD_H

#include "Proc/Reflection/Folds.h"
#include "Proc/Settings/SettingsRecord.h"

#include <cstdint>
#include <string>

/// The record that the cases give their field lists to.
class Record : public Ombrel::Proc::SettingsRecord<Record>
{
public:
    static const std::string CLASS_ID;

    bool operator==(const Record& other) const { return m_radius == other.m_radius; }

    std::int32_t GetRadius() const { return m_radius; }
    void SetRadius(std::int32_t value) { m_radius = value; }

    std::int32_t m_radius = 0;
    std::int32_t radius = 0;
    std::int32_t m_sigma = 0;
    std::string m_name;
    std::string m_implName;
    std::string m_helperSettings;
    std::string m_title;
};

#endif
