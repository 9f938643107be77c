<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru">
<context>
    <name>HostSettingsDialog</name>
    <message>
        <location filename="../HostSettingsDialog.cpp" line="+22"/>
        <source>Settings</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>found on PATH</source>
        <translation>ищутся в PATH</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Browse...</source>
        <translation>Обзор...</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Folder of Hugin&apos;s programs</source>
        <translation>Папка программ Hugin</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>The system&apos;s</source>
        <translation>Язык системы</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>The language applies from the next start.</source>
        <translation>Язык будет применён при следующем запуске.</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Hugin&apos;s programs:</source>
        <translation>Программы Hugin:</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Language:</source>
        <translation>Язык:</translation>
    </message>
    <message>
        <location line="+49"/>
        <source>on PATH</source>
        <translation>в PATH</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>in %1</source>
        <translation>в %1</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Not found %2: %1. On Debian and Ubuntu, Hugin&apos;s programs come with the packages %3 (sudo apt install %3).</source>
        <translation>Не найдено %2: %1. В Debian и Ubuntu программы Hugin входят в пакеты %3 (sudo apt install %3).</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Every program the stitch needs is found.</source>
        <translation>Все программы, нужные для сшивки, найдены.</translation>
    </message>
</context>
<context>
    <name>ImportResultPage</name>
    <message>
        <location filename="../ImportResultPage.cpp" line="+39"/>
        <source>yes</source>
        <translation>да</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>no</source>
        <translation>нет</translation>
    </message>
    <message>
        <location line="+29"/>
        <source>Cannot read %1.</source>
        <translation>Не удаётся прочитать %1.</translation>
    </message>
    <message>
        <location line="+35"/>
        <source>Imported panorama</source>
        <translation>Импортированная панорама</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>What the plug-in handed over: the stacks of photographs, their positions and the links along which control points will be looked for.</source>
        <translation>Что передал модуль: стопки фотографий, их положения и связи, вдоль которых будут искаться контрольные точки.</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Layout</source>
        <translation>Расположение</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Panorama</source>
        <translation>Панорама</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Save project...</source>
        <translation>Сохранить проект...</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Saves the Hugin project and its description (.json), which the stitch needs.</source>
        <translation>Сохраняет проект Hugin и его описание (.json), нужное для сшивки.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Save layout picture...</source>
        <translation>Сохранить схему расположения...</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Stitch panorama...</source>
        <translation>Сшить панораму...</translation>
    </message>
    <message>
        <location line="+41"/>
        <source>&lt;p&gt;The plug-in handed nothing over.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Модуль ничего не передал.&lt;/p&gt;</translation>
    </message>
    <message>
        <location line="+26"/>
        <source>columns</source>
        <translation>по столбцам</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>rows downward</source>
        <translation>по рядам вниз</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>rows upward</source>
        <translation>по рядам вверх</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>columns to the left</source>
        <translation>по столбцам влево</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>serpentine</source>
        <translation>змейкой</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>order %1</source>
        <translation>порядок %1</translation>
    </message>
    <message>
        <location line="+37"/>
        <source>no direction</source>
        <translation>без направления</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>below</source>
        <translation>снизу</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>right</source>
        <translation>справа</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>below right</source>
        <translation>снизу справа</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>above right</source>
        <translation>сверху справа</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>direction %1</source>
        <translation>направление %1</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Standard</source>
        <translation>Стандартный</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Fisheye</source>
        <translation>«Рыбий глаз»</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>not known</source>
        <translation>неизвестно</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>%1 mm</source>
        <translation>%1 мм</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>not set</source>
        <translation>не задано</translation>
    </message>
    <message>
        <location line="+3"/>
        <location line="+6"/>
        <source>from the photographs</source>
        <translation>из фотографий</translation>
    </message>
    <message>
        <location line="-6"/>
        <location line="+6"/>
        <source>from the record</source>
        <translation>из записи</translation>
    </message>
    <message>
        <location line="-4"/>
        <source>%1 mm (%2)</source>
        <translation>%1 мм (%2)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>not known: neither the record nor the photographs give one</source>
        <translation>неизвестно: её не дают ни запись, ни фотографии</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>8-bits / 16-bits tonemapped</source>
        <translation>8 / 16 бит, тональная компрессия</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>32-bits HDR radiance</source>
        <translation>HDR-яркость 32 бита</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>not chosen</source>
        <translation>не выбрано</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Plug-in</source>
        <translation>Модуль</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Stacks</source>
        <translation>Стопки</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Images</source>
        <translation>Изображения</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>%1 (%2 per stack)</source>
        <translation>%1 (%2 на стопку)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>%1 (%2 to %3 per stack)</source>
        <translation>%1 (от %2 до %3 на стопку)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Shots with angles</source>
        <translation>Снимки с углами</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Links</source>
        <translation>Связи</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>none (no restriction)</source>
        <translation>нет (без ограничений)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Focal length</source>
        <translation>Фокусное расстояние</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Lens</source>
        <translation>Объектив</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Auto detection</source>
        <translation>Автоопределение</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>For a stack</source>
        <translation>Для стопки</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Detect control points</source>
        <translation>Искать контрольные точки</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Use hard links</source>
        <translation>Использовать жёсткие связи</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Detect links in</source>
        <translation>Искать связи в</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>All stack levels</source>
        <translation>Всех уровнях стопки</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>The reference level</source>
        <translation>Опорном уровне</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Use recorded location</source>
        <translation>Использовать записанное положение</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Skip optimization</source>
        <translation>Пропустить оптимизацию</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Clean wrong link</source>
        <translation>Удалять ошибочные связи</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Overlap</source>
        <translation>Перекрытие</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Output</source>
        <translation>Вывод</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Grid</source>
        <translation>Сетка</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>%1 rows, shot by %2, %3 per stack%4</source>
        <translation>%1 рядов, съёмка %2, %3 на стопку%4</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>, full 360°</source>
        <translation>, полные 360°</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Stacks, reference image first</source>
        <translation>Стопки, опорное изображение первым</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>and %1 more</source>
        <translation>и ещё %1</translation>
    </message>
    <message>
        <location line="+16"/>
        <location line="+100"/>
        <source>Nothing was imported.</source>
        <translation>Ничего не импортировано.</translation>
    </message>
    <message>
        <location line="-50"/>
        <location line="+8"/>
        <source>Save project</source>
        <translation>Сохранить проект</translation>
    </message>
    <message>
        <location line="-7"/>
        <source>Hugin projects (*.pto)</source>
        <translation>Проекты Hugin (*.pto)</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Saved %1 and its description</source>
        <translation>Сохранены %1 и его описание</translation>
    </message>
    <message>
        <location line="+7"/>
        <location line="+8"/>
        <source>Save layout picture</source>
        <translation>Сохранить схему расположения</translation>
    </message>
    <message>
        <location line="-7"/>
        <source>PNG pictures (*.png)</source>
        <translation>Изображения PNG (*.png)</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Saved %1</source>
        <translation>Сохранено: %1</translation>
    </message>
    <message>
        <location line="+24"/>
        <source>A stitch is running.</source>
        <translation>Идёт сшивка.</translation>
    </message>
    <message>
        <location line="+26"/>
        <source>Stitching %1</source>
        <translation>Сшивка %1</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>JPEG pictures (*.jpg)</source>
        <translation>Изображения JPEG (*.jpg)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>TIFF pictures (*.tif)</source>
        <translation>Изображения TIFF (*.tif)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>OpenEXR HDR pictures (*.exr)</source>
        <translation>HDR-изображения OpenEXR (*.exr)</translation>
    </message>
    <message>
        <location line="+4"/>
        <location line="+11"/>
        <location line="+43"/>
        <source>Stitch panorama</source>
        <translation>Сшить панораму</translation>
    </message>
    <message>
        <location line="-20"/>
        <source>Stitched %1 in %2 s</source>
        <translation>%1 сшито за %2 с</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>The stitch was cancelled; no panorama was written.</source>
        <translation>Сшивка отменена; панорама не записана.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>The stitch failed.</source>
        <translation>Сшивка не удалась.</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>The step &quot;%1&quot; (%2) failed:
%3</source>
        <translation>Шаг «%1» (%2) не удался:
%3</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The stitch could not start:
%1</source>
        <translation>Не удалось начать сшивку:
%1</translation>
    </message>
</context>
<context>
    <name>ImportWizard</name>
    <message>
        <location filename="../ImportWizard.cpp" line="+23"/>
        <source>panohead: import a panorama</source>
        <translation>panohead: импорт панорамы</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Settings...</source>
        <translation>Настройки...</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>%1 %2 by %3, loaded from %4</source>
        <translation>%1 %2 от %3, загружено из %4</translation>
    </message>
    <message>
        <location line="+28"/>
        <source>Unsaved import</source>
        <translation>Несохранённый импорт</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The imported panorama was neither saved nor stitched. Save its project first?</source>
        <translation>Импортированная панорама не сохранена и не сшита. Сначала сохранить её проект?</translation>
    </message>
</context>
<context>
    <name>PanoramaLayoutView</name>
    <message>
        <location filename="../PanoramaLayoutView.cpp" line="+134"/>
        <source>No positions to draw</source>
        <translation>Нет положений для рисования</translation>
    </message>
    <message>
        <location line="+78"/>
        <source>below</source>
        <translation>снизу</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>right</source>
        <translation>справа</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>diagonal</source>
        <translation>по диагонали</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>no direction</source>
        <translation>без направления</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>yaw →, pitch ↑ (degrees)</source>
        <translation>рыскание →, тангаж ↑ (градусы)</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>grid: columns →, rows ↓</source>
        <translation>сетка: столбцы →, ряды ↓</translation>
    </message>
</context>
<context>
    <name>PanoramaPreview</name>
    <message>
        <location filename="../PanoramaPreview.cpp" line="+26"/>
        <source>Open</source>
        <translation>Открыть</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Show in folder</source>
        <translation>Показать в папке</translation>
    </message>
    <message>
        <location line="+28"/>
        <source>%1: %2 × %3 pixels</source>
        <translation>%1: %2 × %3 пикселей</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Stitched Hugin project: %1</source>
        <translation>Сшитый проект Hugin: %1</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The panorama cannot be shown here; open it with &quot;Open&quot;.</source>
        <translation>Панораму нельзя показать здесь; откройте её кнопкой «Открыть».</translation>
    </message>
</context>
<context>
    <name>PluginChoicePage</name>
    <message>
        <location filename="../PluginChoicePage.cpp" line="+17"/>
        <source>Choose the panoramic head</source>
        <translation>Выберите панорамную головку</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Choose the import plug-in for the head, or the program, that recorded your panorama. Its page comes next.</source>
        <translation>Выберите модуль импорта для головки или программы, записавшей панораму. Его страница откроется следующей.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Plug-in</source>
        <translation>Модуль</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Version</source>
        <translation>Версия</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Description</source>
        <translation>Описание</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
</context>
<context>
    <name>PluginLibraryLoader</name>
    <message>
        <location filename="../PluginLibraryLoader.cpp" line="+60"/>
        <source>%1 is not a Qt plug-in: %2</source>
        <translation>%1 не является модулем Qt: %2</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>%1 is a plug-in for &quot;%2&quot;, not a ZPanoHead library</source>
        <translation>%1 — модуль для «%2», а не библиотека ZPanoHead</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>%1 declares the root class &quot;%2&quot; instead of &quot;%3&quot;</source>
        <translation>%1 объявляет корневой класс «%2» вместо «%3»</translation>
    </message>
    <message>
        <location line="+45"/>
        <source>No ZPanoHead plug-in library was found in:
%1</source>
        <translation>Библиотека модулей ZPanoHead не найдена в:
%1</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Build the ZPanoHead target, or name its folder with --plugin-dir.</source>
        <translation>Соберите цель ZPanoHead или укажите её папку через --plugin-dir.</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Cannot load %1: %2</source>
        <translation>Не удаётся загрузить %1: %2</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>%1 does not offer the plug-in library interfaces</source>
        <translation>%1 не предоставляет интерфейсы библиотеки модулей</translation>
    </message>
</context>
<context>
    <name>StitchPipeline</name>
    <message>
        <location filename="../../stitch/StitchPipeline.cpp" line="+361"/>
        <source>Finding control points</source>
        <translation>Поиск контрольных точек</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Removing points between positions that do not meet</source>
        <translation>Удаление точек между несоседними положениями</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Removing wrong points</source>
        <translation>Удаление ошибочных точек</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Placing the pictures</source>
        <translation>Размещение снимков</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Choosing canvas and crop</source>
        <translation>Выбор холста и обрезки</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Remapping</source>
        <translation>Перепроецирование</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Blending</source>
        <translation>Смешивание</translation>
    </message>
</context>
<context>
    <name>StitchProgressWidget</name>
    <message>
        <location filename="../StitchProgressWidget.cpp" line="+21"/>
        <source>Cancel stitch</source>
        <translation>Отменить сшивку</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Stopping...</source>
        <translation>Остановка...</translation>
    </message>
    <message>
        <location line="+26"/>
        <source>Checking the project...</source>
        <translation>Проверка проекта...</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>Step %1 of %2: %3</source>
        <translation>Шаг %1 из %2: %3</translation>
    </message>
    <message>
        <location line="-2"/>
        <source>%1 %2 of %3</source>
        <translation>%1: %2 из %3</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>%1:%2</source>
        <translation>%1:%2</translation>
    </message>
</context>
</TS>
