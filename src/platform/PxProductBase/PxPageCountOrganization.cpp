#include "PxPageCountOrganization.h"

bool PxPageCountOrganization::operator==(const PxPageCountOrganization &other) const
{
    return m_minimum == other.m_minimum && m_maximum == other.m_maximum &&
           m_increment == other.m_increment;
}
