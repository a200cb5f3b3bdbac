#pragma once

#include <QString>
#include <array>

/// What a device says about itself, in the order of the queries.
enum class Phone_Value
{
    Manufacturer,
    Model,
    Imei,
    Imsi,
    Battery,
    Signal,
    Network_Operator,
    Revision,
    Default_Smsc
};

constexpr int Phone_Value_Count = 9;

/// The name of the field in which a window shows the value, "_manfacturer_edit" for the first.
const char* Phone_Value_Field(Phone_Value value);

/// Receives the results of the queries, on the asking thread. A value that the device refuses is not set.
class Phone_Values_Display
{
public:
    virtual ~Phone_Values_Display() = default;
    virtual void Set_Phone_Value(Phone_Value value, const QString& text) = 0;
};

/// The nine values as a plain record. One thread.
class Phone_Values : public Phone_Values_Display
{
public:
    void Set_Phone_Value(Phone_Value value, const QString& text) override { m_texts[static_cast<int>(value)] = text; }
    QString Text(Phone_Value value) const { return m_texts[static_cast<int>(value)]; }

private:
    std::array<QString, Phone_Value_Count> m_texts;
};
