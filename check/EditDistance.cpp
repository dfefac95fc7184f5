#include "check/EditDistance.h"

#include <QVector>

int editDistance(const QString &from, const QString &to)
{
    QVector<QVector<int>> distances(from.size() + 1, QVector<int>(to.size() + 1));
    for (int i = 0; i <= from.size(); ++i) {
        for (int j = 0; j <= to.size(); ++j) {
            int &distance = distances[i][j];
            if (i == 0 || j == 0) {
                distance = i + j;
                continue;
            }
            const bool isEqual = from[i - 1] == to[j - 1];
            distance = qMin(qMin(distances[i - 1][j], distances[i][j - 1]) + 1,
                distances[i - 1][j - 1] + (isEqual ? 0 : 1));
            if (i > 1 && j > 1 && from[i - 1] == to[j - 2] && from[i - 2] == to[j - 1])
                distance = qMin(distance, distances[i - 2][j - 2] + 1);
        }
    }
    return distances[from.size()][to.size()];
}
