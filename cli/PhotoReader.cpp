#include "PhotoReader.h"

#include "ImageDefinition.h"
#include "ParallelPhotoReader.h"
#include "ProgressBar.h"

QVector<QSharedPointer<ImageDefinition>> PhotoReader::read(
    const QStringList& paths, Console& console)
{
    ProgressBar bar(console, QStringLiteral("Reading photographs"), paths.size());
    const QVector<QSharedPointer<ImageDefinition>> definitions
        = ParallelPhotoReader::read(paths, [&bar](int done, int total) {
              // The final state is drawn once, by finish.
              if (done < total)
                  bar.update(done);
          });
    bar.finish(paths.size());
    return definitions;
}
