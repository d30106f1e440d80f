#include "TiemposSorteos.h"

const std::array<TiempoSorteos, 6> TiemposSorteos{{
    {"49", "13.983.816", "3 a 6 aciertos en 1 sorteo", "1", "0,01 s", "260.624"},
    {"49", "13.983.816", "3 a 6 aciertos en 1 sorteo", "2", "0,01 s", "513.048"},
    {"49", "13.983.816", "3 a 6 aciertos en 46 a 56 sorteos", "2.768", "0,01 s", "7.840.208"},
    {"49", "13.983.816", "3 a 6 aciertos en 177 a 195 sorteos", "10.000", "0,02 s", "7.259.802"},
    {"49", "13.983.816 importadas", "3 a 6 aciertos en 46 a 56 sorteos", "2.768", "0,12 s", "7.840.208"},
    {"49", "2.000 importadas", "3 a 6 aciertos en 165 a 183 sorteos", "9.361", "0,02 s", "1.059"},
}};
