#ifndef KEPT_P_H
#define KEPT_P_H

#include <tuple>

namespace ZIRVOUI {

/*! A value beside the inputs that it was made from; made again when they differ. */
template <typename Value, typename... Inputs>
class Kept
{
public:
    template <typename Make>
    Value &of(const std::tuple<Inputs...> &inputs, Make make)
    {
        if (!m_isMade || inputs != m_inputs) {
            m_inputs = inputs;
            m_value = make();
            m_isMade = true;
        }
        return m_value;
    }

    void forget() { m_isMade = false; }

private:
    bool m_isMade = false;
    std::tuple<Inputs...> m_inputs;
    Value m_value;
};

} // namespace ZIRVOUI

#endif
