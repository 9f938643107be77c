<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW">
<context>
    <name>HostSettingsDialog</name>
    <message>
        <location filename="../HostSettingsDialog.cpp" line="+22"/>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>found on PATH</source>
        <translation>在 PATH 中尋找</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Browse...</source>
        <translation>瀏覽...</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Folder of Hugin&apos;s programs</source>
        <translation>Hugin 程式所在的資料夾</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>The system&apos;s</source>
        <translation>系統語言</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>The language applies from the next start.</source>
        <translation>語言將在下次啟動時生效。</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Hugin&apos;s programs:</source>
        <translation>Hugin 程式：</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Language:</source>
        <translation>語言：</translation>
    </message>
    <message>
        <location line="+49"/>
        <source>on PATH</source>
        <translation>在 PATH 中</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>in %1</source>
        <translation>在 %1 中</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Not found %2: %1. On Debian and Ubuntu, Hugin&apos;s programs come with the packages %3 (sudo apt install %3).</source>
        <translation>%2 找不到：%1。在 Debian 和 Ubuntu 上，Hugin 的程式由套件 %3 提供（sudo apt install %3）。</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Every program the stitch needs is found.</source>
        <translation>拼接所需的程式均已找到。</translation>
    </message>
</context>
<context>
    <name>ImportResultPage</name>
    <message>
        <location filename="../ImportResultPage.cpp" line="+39"/>
        <source>yes</source>
        <translation>是</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>no</source>
        <translation>否</translation>
    </message>
    <message>
        <location line="+29"/>
        <source>Cannot read %1.</source>
        <translation>無法讀取 %1。</translation>
    </message>
    <message>
        <location line="+35"/>
        <source>Imported panorama</source>
        <translation>匯入的全景圖</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>What the plug-in handed over: the stacks of photographs, their positions and the links along which control points will be looked for.</source>
        <translation>外掛交來的內容：照片堆疊、它們的位置，以及將沿其尋找控制點的連結。</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Layout</source>
        <translation>佈局</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Panorama</source>
        <translation>全景圖</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Save project...</source>
        <translation>儲存專案...</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Saves the Hugin project and its description (.json), which the stitch needs.</source>
        <translation>儲存 Hugin 專案及拼接所需的描述檔（.json）。</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Save layout picture...</source>
        <translation>儲存佈局圖...</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Stitch panorama...</source>
        <translation>拼接全景圖...</translation>
    </message>
    <message>
        <location line="+41"/>
        <source>&lt;p&gt;The plug-in handed nothing over.&lt;/p&gt;</source>
        <translation>&lt;p&gt;外掛沒有交來任何內容。&lt;/p&gt;</translation>
    </message>
    <message>
        <location line="+26"/>
        <source>columns</source>
        <translation>按欄</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>rows downward</source>
        <translation>按列向下</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>rows upward</source>
        <translation>按列向上</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>columns to the left</source>
        <translation>按欄向左</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>serpentine</source>
        <translation>蛇形</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>order %1</source>
        <translation>順序 %1</translation>
    </message>
    <message>
        <location line="+37"/>
        <source>no direction</source>
        <translation>無方向</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>below</source>
        <translation>下方</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>right</source>
        <translation>右側</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>below right</source>
        <translation>右下</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>above right</source>
        <translation>右上</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>direction %1</source>
        <translation>方向 %1</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Standard</source>
        <translation>標準</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Fisheye</source>
        <translation>魚眼</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>not known</source>
        <translation>未知</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>%1 mm</source>
        <translation>%1 毫米</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>not set</source>
        <translation>未設定</translation>
    </message>
    <message>
        <location line="+3"/>
        <location line="+6"/>
        <source>from the photographs</source>
        <translation>來自照片</translation>
    </message>
    <message>
        <location line="-6"/>
        <location line="+6"/>
        <source>from the record</source>
        <translation>來自記錄</translation>
    </message>
    <message>
        <location line="-4"/>
        <source>%1 mm (%2)</source>
        <translation>%1 毫米（%2）</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>not known: neither the record nor the photographs give one</source>
        <translation>未知：記錄和照片都未提供</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>%1 (%2)</source>
        <translation>%1（%2）</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>8-bits / 16-bits tonemapped</source>
        <translation>8 位元 / 16 位元 色調對應</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>32-bits HDR radiance</source>
        <translation>32 位元 HDR 輻射</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>not chosen</source>
        <translation>未選擇</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Plug-in</source>
        <translation>外掛</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Stacks</source>
        <translation>堆疊</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Images</source>
        <translation>影像</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>%1 (%2 per stack)</source>
        <translation>%1（每個堆疊 %2）</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>%1 (%2 to %3 per stack)</source>
        <translation>%1（每個堆疊 %2 至 %3）</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Shots with angles</source>
        <translation>帶角度的拍攝</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Links</source>
        <translation>連結</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>none (no restriction)</source>
        <translation>無（不限制）</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Focal length</source>
        <translation>焦距</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Lens</source>
        <translation>鏡頭</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Auto detection</source>
        <translation>自動偵測</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>For a stack</source>
        <translation>對於堆疊</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Detect control points</source>
        <translation>偵測控制點</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Use hard links</source>
        <translation>使用固定連結</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Detect links in</source>
        <translation>偵測連結於</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>All stack levels</source>
        <translation>所有堆疊層級</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>The reference level</source>
        <translation>參考層級</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Use recorded location</source>
        <translation>使用記錄的位置</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Skip optimization</source>
        <translation>略過最佳化</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Clean wrong link</source>
        <translation>清除錯誤連結</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Overlap</source>
        <translation>重疊</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>%1 %</source>
        <translation>%1%</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Output</source>
        <translation>輸出</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Grid</source>
        <translation>網格</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>%1 rows, shot by %2, %3 per stack%4</source>
        <translation>%1 列，拍攝順序：%2，每個堆疊 %3%4</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>, full 360°</source>
        <translation>，完整 360°</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Stacks, reference image first</source>
        <translation>堆疊（參考影像在前）</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>and %1 more</source>
        <translation>另有 %1 個</translation>
    </message>
    <message>
        <location line="+16"/>
        <location line="+100"/>
        <source>Nothing was imported.</source>
        <translation>沒有匯入任何內容。</translation>
    </message>
    <message>
        <location line="-50"/>
        <location line="+8"/>
        <source>Save project</source>
        <translation>儲存專案</translation>
    </message>
    <message>
        <location line="-7"/>
        <source>Hugin projects (*.pto)</source>
        <translation>Hugin 專案 (*.pto)</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Saved %1 and its description</source>
        <translation>已儲存 %1 及其描述</translation>
    </message>
    <message>
        <location line="+7"/>
        <location line="+8"/>
        <source>Save layout picture</source>
        <translation>儲存佈局圖</translation>
    </message>
    <message>
        <location line="-7"/>
        <source>PNG pictures (*.png)</source>
        <translation>PNG 圖片 (*.png)</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Saved %1</source>
        <translation>已儲存 %1</translation>
    </message>
    <message>
        <location line="+24"/>
        <source>A stitch is running.</source>
        <translation>正在拼接。</translation>
    </message>
    <message>
        <location line="+26"/>
        <source>Stitching %1</source>
        <translation>正在拼接 %1</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>JPEG pictures (*.jpg)</source>
        <translation>JPEG 圖片 (*.jpg)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>TIFF pictures (*.tif)</source>
        <translation>TIFF 圖片 (*.tif)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>OpenEXR HDR pictures (*.exr)</source>
        <translation>OpenEXR HDR 圖片 (*.exr)</translation>
    </message>
    <message>
        <location line="+4"/>
        <location line="+11"/>
        <location line="+43"/>
        <source>Stitch panorama</source>
        <translation>拼接全景圖</translation>
    </message>
    <message>
        <location line="-20"/>
        <source>Stitched %1 in %2 s</source>
        <translation>已拼接 %1，用時 %2 秒</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>The stitch was cancelled; no panorama was written.</source>
        <translation>拼接已取消，未寫入全景圖。</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>The stitch failed.</source>
        <translation>拼接失敗。</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>The step &quot;%1&quot; (%2) failed:
%3</source>
        <translation>步驟「%1」（%2）失敗：
%3</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The stitch could not start:
%1</source>
        <translation>無法開始拼接：
%1</translation>
    </message>
</context>
<context>
    <name>ImportWizard</name>
    <message>
        <location filename="../ImportWizard.cpp" line="+23"/>
        <source>panohead: import a panorama</source>
        <translation>panohead：匯入全景圖</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Settings...</source>
        <translation>設定...</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>%1 %2 by %3, loaded from %4</source>
        <translation>%1 %2，%3 出品，從 %4 載入</translation>
    </message>
    <message>
        <location line="+28"/>
        <source>Unsaved import</source>
        <translation>未儲存的匯入</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The imported panorama was neither saved nor stitched. Save its project first?</source>
        <translation>匯入的全景圖既未儲存也未拼接。先儲存其專案嗎？</translation>
    </message>
</context>
<context>
    <name>PanoramaLayoutView</name>
    <message>
        <location filename="../PanoramaLayoutView.cpp" line="+134"/>
        <source>No positions to draw</source>
        <translation>沒有可繪製的位置</translation>
    </message>
    <message>
        <location line="+78"/>
        <source>below</source>
        <translation>下方</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>right</source>
        <translation>右側</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>diagonal</source>
        <translation>對角</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>no direction</source>
        <translation>無方向</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>yaw →, pitch ↑ (degrees)</source>
        <translation>偏航 →，俯仰 ↑（度）</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>grid: columns →, rows ↓</source>
        <translation>網格：欄 →，列 ↓</translation>
    </message>
</context>
<context>
    <name>PanoramaPreview</name>
    <message>
        <location filename="../PanoramaPreview.cpp" line="+26"/>
        <source>Open</source>
        <translation>開啟</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Show in folder</source>
        <translation>在資料夾中顯示</translation>
    </message>
    <message>
        <location line="+28"/>
        <source>%1: %2 × %3 pixels</source>
        <translation>%1：%2 × %3 像素</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Stitched Hugin project: %1</source>
        <translation>拼接後的 Hugin 專案：%1</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The panorama cannot be shown here; open it with &quot;Open&quot;.</source>
        <translation>無法在此顯示全景圖；請用「開啟」開啟它。</translation>
    </message>
</context>
<context>
    <name>PluginChoicePage</name>
    <message>
        <location filename="../PluginChoicePage.cpp" line="+17"/>
        <source>Choose the panoramic head</source>
        <translation>選擇全景雲台</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Choose the import plug-in for the head, or the program, that recorded your panorama. Its page comes next.</source>
        <translation>選擇記錄全景圖的雲台或程式所對應的匯入外掛。接下來顯示它的頁面。</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Plug-in</source>
        <translation>外掛</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Version</source>
        <translation>版本</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Description</source>
        <translation>描述</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>%1, %2</source>
        <translation>%1，%2</translation>
    </message>
</context>
<context>
    <name>PluginLibraryLoader</name>
    <message>
        <location filename="../PluginLibraryLoader.cpp" line="+60"/>
        <source>%1 is not a Qt plug-in: %2</source>
        <translation>%1 不是 Qt 外掛：%2</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>%1 is a plug-in for &quot;%2&quot;, not a ZPanoHead library</source>
        <translation>%1 是「%2」的外掛，不是 ZPanoHead 程式庫</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>%1 declares the root class &quot;%2&quot; instead of &quot;%3&quot;</source>
        <translation>%1 宣告的根類別是「%2」而不是「%3」</translation>
    </message>
    <message>
        <location line="+45"/>
        <source>No ZPanoHead plug-in library was found in:
%1</source>
        <translation>在以下位置找不到 ZPanoHead 外掛程式庫：
%1</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Build the ZPanoHead target, or name its folder with --plugin-dir.</source>
        <translation>請建置 ZPanoHead 目標，或用 --plugin-dir 指定其資料夾。</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Cannot load %1: %2</source>
        <translation>無法載入 %1：%2</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>%1 does not offer the plug-in library interfaces</source>
        <translation>%1 未提供外掛程式庫介面</translation>
    </message>
</context>
<context>
    <name>StitchPipeline</name>
    <message>
        <location filename="../../stitch/StitchPipeline.cpp" line="+361"/>
        <source>Finding control points</source>
        <translation>尋找控制點</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Removing points between positions that do not meet</source>
        <translation>刪除不相鄰位置之間的點</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Removing wrong points</source>
        <translation>刪除錯誤的點</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Placing the pictures</source>
        <translation>放置影像</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Choosing canvas and crop</source>
        <translation>選擇畫布和裁切</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Remapping</source>
        <translation>重新映射</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Blending</source>
        <translation>融合</translation>
    </message>
</context>
<context>
    <name>StitchProgressWidget</name>
    <message>
        <location filename="../StitchProgressWidget.cpp" line="+21"/>
        <source>Cancel stitch</source>
        <translation>取消拼接</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Stopping...</source>
        <translation>正在停止...</translation>
    </message>
    <message>
        <location line="+26"/>
        <source>Checking the project...</source>
        <translation>正在檢查專案...</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>Step %1 of %2: %3</source>
        <translation>第 %1 步，共 %2 步：%3</translation>
    </message>
    <message>
        <location line="-2"/>
        <source>%1 %2 of %3</source>
        <translation>%1：第 %2 張，共 %3 張</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>%1:%2</source>
        <translation>%1:%2</translation>
    </message>
</context>
</TS>
