// Properties that tell their observers when they change: that is how a view follows a window or a control.
#pragma once

#include <functional>
#include <map>
#include <utility>

namespace varo {

/// Something with properties. Observers are told after each change, in the order in which they came.
class Observable {
public:
    Observable() = default;
    Observable(const Observable&) = delete;
    Observable& operator=(const Observable&) = delete;
    virtual ~Observable() = default;

    /// Returns the number with which the observer can be taken off again.
    int observar(std::function<void()> observador) {
        observadores_.emplace(++ultimoObservador_, std::move(observador));
        return ultimoObservador_;
    }
    void dejarDeObservar(int observador) { observadores_.erase(observador); }

protected:
    template <class T>
    friend class Propiedad;

    /// Called when one of the properties has taken another value; `propiedad` is its address.
    virtual void alCambiar(const void* /*propiedad*/) { avisar(); }

    void avisar() {
        const auto vistos = observadores_; // an observer may come or go while they are told
        for (const auto& [numero, observador] : vistos) {
            if (observadores_.contains(numero)) {
                observador();
            }
        }
    }

private:
    std::map<int, std::function<void()>> observadores_;
    int ultimoObservador_ = 0;
};

/// A value of a window or a control. Setting the value it already has does nothing.
template <class T>
class Propiedad {
public:
    explicit Propiedad(Observable& dueno, T inicial = T{}) : dueno_{dueno}, valor_{std::move(inicial)} {}
    Propiedad(const Propiedad&) = delete;
    Propiedad& operator=(const Propiedad&) = delete;
    ~Propiedad() = default;

    operator const T&() const {
        return valor_;
    } // NOLINT(google-explicit-constructor): reads as a plain value
    const T& operator()() const { return valor_; }

    Propiedad& operator=(T valor) {
        if (!(valor == valor_)) {
            valor_ = std::move(valor);
            dueno_.alCambiar(this);
        }
        return *this;
    }

private:
    Observable& dueno_;
    T valor_;
};

} // namespace varo
