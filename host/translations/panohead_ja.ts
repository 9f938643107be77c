<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
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
        <translation>PATH から検索</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Browse...</source>
        <translation>参照...</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Folder of Hugin&apos;s programs</source>
        <translation>Hugin のプログラムのフォルダー</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>The system&apos;s</source>
        <translation>システムの言語</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>The language applies from the next start.</source>
        <translation>言語は次回の起動から適用されます。</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Hugin&apos;s programs:</source>
        <translation>Hugin のプログラム:</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Language:</source>
        <translation>言語:</translation>
    </message>
    <message>
        <location line="+49"/>
        <source>on PATH</source>
        <translation>PATH 内</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>in %1</source>
        <translation>%1 内</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Not found %2: %1. On Debian and Ubuntu, Hugin&apos;s programs come with the packages %3 (sudo apt install %3).</source>
        <translation>%2 に見つかりません: %1。Debian と Ubuntu では Hugin のプログラムはパッケージ %3 に含まれています (sudo apt install %3)。</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Every program the stitch needs is found.</source>
        <translation>スティッチに必要なプログラムはすべて見つかりました。</translation>
    </message>
</context>
<context>
    <name>ImportResultPage</name>
    <message>
        <location filename="../ImportResultPage.cpp" line="+39"/>
        <source>yes</source>
        <translation>はい</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>no</source>
        <translation>いいえ</translation>
    </message>
    <message>
        <location line="+29"/>
        <source>Cannot read %1.</source>
        <translation>%1 を読み込めません。</translation>
    </message>
    <message>
        <location line="+35"/>
        <source>Imported panorama</source>
        <translation>インポートしたパノラマ</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>What the plug-in handed over: the stacks of photographs, their positions and the links along which control points will be looked for.</source>
        <translation>プラグインが渡した内容: 写真のスタック、その位置、コントロールポイントを探すリンク。</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Layout</source>
        <translation>配置</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Panorama</source>
        <translation>パノラマ</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Save project...</source>
        <translation>プロジェクトを保存...</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Saves the Hugin project and its description (.json), which the stitch needs.</source>
        <translation>Hugin プロジェクトと、スティッチに必要なその説明 (.json) を保存します。</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Save layout picture...</source>
        <translation>配置図を保存...</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Stitch panorama...</source>
        <translation>パノラマをスティッチ...</translation>
    </message>
    <message>
        <location line="+41"/>
        <source>&lt;p&gt;The plug-in handed nothing over.&lt;/p&gt;</source>
        <translation>&lt;p&gt;プラグインは何も渡しませんでした。&lt;/p&gt;</translation>
    </message>
    <message>
        <location line="+26"/>
        <source>columns</source>
        <translation>列ごと</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>rows downward</source>
        <translation>行ごと (下へ)</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>rows upward</source>
        <translation>行ごと (上へ)</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>columns to the left</source>
        <translation>列ごと (左へ)</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>serpentine</source>
        <translation>蛇行</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>order %1</source>
        <translation>順序 %1</translation>
    </message>
    <message>
        <location line="+37"/>
        <source>no direction</source>
        <translation>方向なし</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>below</source>
        <translation>下</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>right</source>
        <translation>右</translation>
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
        <translation>不明</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>%1 mm</source>
        <translation>%1 mm</translation>
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
        <translation>写真から</translation>
    </message>
    <message>
        <location line="-6"/>
        <location line="+6"/>
        <source>from the record</source>
        <translation>記録から</translation>
    </message>
    <message>
        <location line="-4"/>
        <source>%1 mm (%2)</source>
        <translation>%1 mm (%2)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>not known: neither the record nor the photographs give one</source>
        <translation>不明: 記録にも写真にもありません</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>8-bits / 16-bits tonemapped</source>
        <translation>8 ビット / 16 ビット トーンマップ</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>32-bits HDR radiance</source>
        <translation>32 ビット HDR ラジアンス</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>not chosen</source>
        <translation>未選択</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Plug-in</source>
        <translation>プラグイン</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Stacks</source>
        <translation>スタック</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Images</source>
        <translation>画像</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>%1 (%2 per stack)</source>
        <translation>%1 (スタックごとに %2)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>%1 (%2 to %3 per stack)</source>
        <translation>%1 (スタックごとに %2 ～ %3)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Shots with angles</source>
        <translation>角度付きの撮影</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Links</source>
        <translation>リンク</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>none (no restriction)</source>
        <translation>なし (制限なし)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Focal length</source>
        <translation>焦点距離</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Lens</source>
        <translation>レンズ</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Auto detection</source>
        <translation>自動検出</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>For a stack</source>
        <translation>スタックでは</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Detect control points</source>
        <translation>コントロールポイントを検出</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Use hard links</source>
        <translation>固定リンクを使用</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Detect links in</source>
        <translation>リンクの検出対象</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>All stack levels</source>
        <translation>スタックのすべてのレベル</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>The reference level</source>
        <translation>基準レベル</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Use recorded location</source>
        <translation>記録された位置を使用</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Skip optimization</source>
        <translation>最適化を省略</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Clean wrong link</source>
        <translation>誤ったリンクを除去</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Overlap</source>
        <translation>重なり</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Output</source>
        <translation>出力</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Grid</source>
        <translation>グリッド</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>%1 rows, shot by %2, %3 per stack%4</source>
        <translation>%1 行、%2 で撮影、スタックごとに %3%4</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>, full 360°</source>
        <translation>、全周 360°</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Stacks, reference image first</source>
        <translation>スタック (基準画像が先頭)</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>and %1 more</source>
        <translation>ほか %1 件</translation>
    </message>
    <message>
        <location line="+16"/>
        <location line="+100"/>
        <source>Nothing was imported.</source>
        <translation>何もインポートされていません。</translation>
    </message>
    <message>
        <location line="-50"/>
        <location line="+8"/>
        <source>Save project</source>
        <translation>プロジェクトを保存</translation>
    </message>
    <message>
        <location line="-7"/>
        <source>Hugin projects (*.pto)</source>
        <translation>Hugin プロジェクト (*.pto)</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Saved %1 and its description</source>
        <translation>%1 とその説明を保存しました</translation>
    </message>
    <message>
        <location line="+7"/>
        <location line="+8"/>
        <source>Save layout picture</source>
        <translation>配置図を保存</translation>
    </message>
    <message>
        <location line="-7"/>
        <source>PNG pictures (*.png)</source>
        <translation>PNG 画像 (*.png)</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Saved %1</source>
        <translation>%1 を保存しました</translation>
    </message>
    <message>
        <location line="+24"/>
        <source>A stitch is running.</source>
        <translation>スティッチを実行中です。</translation>
    </message>
    <message>
        <location line="+26"/>
        <source>Stitching %1</source>
        <translation>%1 をスティッチ中</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>JPEG pictures (*.jpg)</source>
        <translation>JPEG 画像 (*.jpg)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>TIFF pictures (*.tif)</source>
        <translation>TIFF 画像 (*.tif)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>OpenEXR HDR pictures (*.exr)</source>
        <translation>OpenEXR HDR 画像 (*.exr)</translation>
    </message>
    <message>
        <location line="+4"/>
        <location line="+11"/>
        <location line="+43"/>
        <source>Stitch panorama</source>
        <translation>パノラマをスティッチ</translation>
    </message>
    <message>
        <location line="-20"/>
        <source>Stitched %1 in %2 s</source>
        <translation>%1 を %2 秒でスティッチしました</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>The stitch was cancelled; no panorama was written.</source>
        <translation>スティッチを中止しました。パノラマは書き込まれていません。</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>The stitch failed.</source>
        <translation>スティッチに失敗しました。</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>The step &quot;%1&quot; (%2) failed:
%3</source>
        <translation>ステップ「%1」(%2) が失敗しました:
%3</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The stitch could not start:
%1</source>
        <translation>スティッチを開始できませんでした:
%1</translation>
    </message>
</context>
<context>
    <name>ImportWizard</name>
    <message>
        <location filename="../ImportWizard.cpp" line="+23"/>
        <source>panohead: import a panorama</source>
        <translation>panohead: パノラマのインポート</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Settings...</source>
        <translation>設定...</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>%1 %2 by %3, loaded from %4</source>
        <translation>%1 %2 (%3)、%4 から読み込み</translation>
    </message>
    <message>
        <location line="+28"/>
        <source>Unsaved import</source>
        <translation>未保存のインポート</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The imported panorama was neither saved nor stitched. Save its project first?</source>
        <translation>インポートしたパノラマは保存もスティッチもされていません。先にプロジェクトを保存しますか?</translation>
    </message>
</context>
<context>
    <name>PanoramaLayoutView</name>
    <message>
        <location filename="../PanoramaLayoutView.cpp" line="+134"/>
        <source>No positions to draw</source>
        <translation>描画する位置がありません</translation>
    </message>
    <message>
        <location line="+78"/>
        <source>below</source>
        <translation>下</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>right</source>
        <translation>右</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>diagonal</source>
        <translation>斜め</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>no direction</source>
        <translation>方向なし</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>yaw →, pitch ↑ (degrees)</source>
        <translation>ヨー →、ピッチ ↑ (度)</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>grid: columns →, rows ↓</source>
        <translation>グリッド: 列 →、行 ↓</translation>
    </message>
</context>
<context>
    <name>PanoramaPreview</name>
    <message>
        <location filename="../PanoramaPreview.cpp" line="+26"/>
        <source>Open</source>
        <translation>開く</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Show in folder</source>
        <translation>フォルダーに表示</translation>
    </message>
    <message>
        <location line="+28"/>
        <source>%1: %2 × %3 pixels</source>
        <translation>%1: %2 × %3 ピクセル</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Stitched Hugin project: %1</source>
        <translation>スティッチした Hugin プロジェクト: %1</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The panorama cannot be shown here; open it with &quot;Open&quot;.</source>
        <translation>ここではパノラマを表示できません。「開く」で開いてください。</translation>
    </message>
</context>
<context>
    <name>PluginChoicePage</name>
    <message>
        <location filename="../PluginChoicePage.cpp" line="+17"/>
        <source>Choose the panoramic head</source>
        <translation>パノラマヘッドを選択</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Choose the import plug-in for the head, or the program, that recorded your panorama. Its page comes next.</source>
        <translation>パノラマを記録したヘッドまたはプログラムのインポート プラグインを選択してください。次にそのページが表示されます。</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Plug-in</source>
        <translation>プラグイン</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Version</source>
        <translation>バージョン</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Description</source>
        <translation>説明</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>%1, %2</source>
        <translation>%1、%2</translation>
    </message>
</context>
<context>
    <name>PluginLibraryLoader</name>
    <message>
        <location filename="../PluginLibraryLoader.cpp" line="+60"/>
        <source>%1 is not a Qt plug-in: %2</source>
        <translation>%1 は Qt プラグインではありません: %2</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>%1 is a plug-in for &quot;%2&quot;, not a ZPanoHead library</source>
        <translation>%1 は「%2」用のプラグインで、ZPanoHead ライブラリではありません</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>%1 declares the root class &quot;%2&quot; instead of &quot;%3&quot;</source>
        <translation>%1 はルートクラスとして「%3」ではなく「%2」を宣言しています</translation>
    </message>
    <message>
        <location line="+45"/>
        <source>No ZPanoHead plug-in library was found in:
%1</source>
        <translation>ZPanoHead プラグイン ライブラリが見つかりません:
%1</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Build the ZPanoHead target, or name its folder with --plugin-dir.</source>
        <translation>ZPanoHead ターゲットをビルドするか、--plugin-dir でフォルダーを指定してください。</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Cannot load %1: %2</source>
        <translation>%1 を読み込めません: %2</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>%1 does not offer the plug-in library interfaces</source>
        <translation>%1 はプラグイン ライブラリのインターフェースを提供していません</translation>
    </message>
</context>
<context>
    <name>StitchPipeline</name>
    <message>
        <location filename="../../stitch/StitchPipeline.cpp" line="+361"/>
        <source>Finding control points</source>
        <translation>コントロールポイントを検索</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Removing points between positions that do not meet</source>
        <translation>接しない位置間のポイントを削除</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Removing wrong points</source>
        <translation>誤ったポイントを削除</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Placing the pictures</source>
        <translation>画像を配置</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Choosing canvas and crop</source>
        <translation>キャンバスと切り抜きを選択</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Remapping</source>
        <translation>リマップ</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Blending</source>
        <translation>ブレンド</translation>
    </message>
</context>
<context>
    <name>StitchProgressWidget</name>
    <message>
        <location filename="../StitchProgressWidget.cpp" line="+21"/>
        <source>Cancel stitch</source>
        <translation>スティッチを中止</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Stopping...</source>
        <translation>停止中...</translation>
    </message>
    <message>
        <location line="+26"/>
        <source>Checking the project...</source>
        <translation>プロジェクトを確認中...</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>Step %1 of %2: %3</source>
        <translation>ステップ %1/%2: %3</translation>
    </message>
    <message>
        <location line="-2"/>
        <source>%1 %2 of %3</source>
        <translation>%1 %2/%3</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>%1:%2</source>
        <translation>%1:%2</translation>
    </message>
</context>
</TS>
