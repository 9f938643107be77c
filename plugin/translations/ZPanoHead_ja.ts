<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP">
<context>
    <name>Library</name>
    <message>
        <location filename="../Library.cpp" line="+83"/>
        <source>Comment</source>
        <translation>コメント</translation>
    </message>
</context>
<context>
    <name>UIWPClauss</name>
    <message>
        <location filename="../../pages/UIWPClauss.cpp" line="+81"/>
        <source>Error</source>
        <translation>エラー</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Error parse file:%1</source>
        <translation>ファイルの解析エラー: %1</translation>
    </message>
    <message>
        <location line="+33"/>
        <source>Select the preset file and/or images</source>
        <translation>プリセットファイルと画像のどちらかまたは両方を選択</translation>
    </message>
    <message>
        <location line="+30"/>
        <location line="+2"/>
        <source>N/A</source>
        <translation>該当なし</translation>
    </message>
</context>
<context>
    <name>UIWPClaussClass</name>
    <message>
        <location filename="../../pages/UIWPClauss.ui" line="+20"/>
        <source>Clauss panohead</source>
        <translation>Clauss パノラマヘッド</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Clauss panohead import</source>
        <translation>Clauss パノラマヘッドからのインポート</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>&lt;a href=&quot;https://zelmo.example/panohead/heads/clauss&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#DCDCDC;&quot;&gt;Clauss&lt;/span&gt;&lt;/a&gt; provides special equipment for panoramic photography and VR applications.</source>
        <translation>&lt;a href=&quot;https://zelmo.example/panohead/heads/clauss&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#DCDCDC;&quot;&gt;Clauss&lt;/span&gt;&lt;/a&gt; はパノラマ撮影と VR アプリケーション向けの専用機材を提供しています。</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>General</source>
        <translation>全般</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Script file:</source>
        <translation>スクリプトファイル:</translation>
    </message>
    <message>
        <location line="+10"/>
        <location line="+104"/>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <location line="-91"/>
        <source>Reset</source>
        <translation>リセット</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Number of shoot:</source>
        <translation>撮影数:</translation>
    </message>
    <message>
        <location line="+7"/>
        <location line="+35"/>
        <location line="+14"/>
        <location line="+48"/>
        <source>N/A</source>
        <translation>該当なし</translation>
    </message>
    <message>
        <location line="-69"/>
        <source>Theta:</source>
        <translation>シータ:</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Phi:</source>
        <translation>ファイ:</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Inverse Y coordinates</source>
        <translation>Y 座標を反転</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Images:</source>
        <translation>画像:</translation>
    </message>
    <message>
        <location line="+27"/>
        <source>Number of image:</source>
        <translation>画像の数:</translation>
    </message>
    <message>
        <location line="+28"/>
        <source>Options</source>
        <translation>オプション</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Auto detection</source>
        <translation>自動検出</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Clean wrong link</source>
        <translation>誤ったリンクを削除</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Skip optimization</source>
        <translation>最適化を省略</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Guided optimization</source>
        <translation>ガイド付き最適化</translation>
    </message>
    <message>
        <location line="+24"/>
        <source>Preview</source>
        <translation>プレビュー</translation>
    </message>
    <message>
        <location line="+25"/>
        <source>Zoom</source>
        <translation>ズーム</translation>
    </message>
</context>
<context>
    <name>UIWPGigapan</name>
    <message>
        <location filename="../../pages/UIWPGigapan.cpp" line="+114"/>
        <source>images in </source>
        <translation>枚の画像を </translation>
    </message>
</context>
<context>
    <name>UIWPGigapanClass</name>
    <message>
        <location filename="../../pages/UIWPGigapan.ui" line="+20"/>
        <source>UIWPGigapan</source>
        <translation>UIWPGigapan</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Gigapan panorama import</source>
        <translation>Gigapan パノラマのインポート</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>&lt;a href=&quot;https://zelmo.example/panohead/heads/gigapan&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#DCDCDC;&quot;&gt;Gigapan&lt;/span&gt;&lt;/a&gt; allows users to upload, share, and explore brilliant gigapixel+ panoramas from around the globe.</source>
        <translation>&lt;a href=&quot;https://zelmo.example/panohead/heads/gigapan&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#DCDCDC;&quot;&gt;Gigapan&lt;/span&gt;&lt;/a&gt; では、世界中のすばらしいギガピクセル級パノラマをアップロード、共有、探索できます。</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>General</source>
        <translation>全般</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Images :</source>
        <translation>画像:</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Reset</source>
        <translation>リセット</translation>
    </message>
    <message>
        <location line="+9"/>
        <source># Images in</source>
        <translation># 枚の画像を</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>rows and</source>
        <translation>行 ×</translation>
    </message>
    <message>
        <location line="+23"/>
        <source>columns.</source>
        <translation>列に配置</translation>
    </message>
    <message>
        <location line="+22"/>
        <source>Ignore N files </source>
        <translation>先頭から無視するファイル数 </translation>
    </message>
    <message>
        <location line="+20"/>
        <source>Nb image per location ( bracketing )</source>
        <translation>位置ごとの画像数 (ブラケット)</translation>
    </message>
    <message>
        <location line="+37"/>
        <source>Shoot layout</source>
        <translation>撮影レイアウト</translation>
    </message>
    <message>
        <location line="+34"/>
        <source>Columns: to left</source>
        <translation>列: 左へ</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Columns (default)</source>
        <translation>列 (既定)</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Rows: upward</source>
        <translation>行: 上へ</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Rows: downward</source>
        <translation>行: 下へ</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Layout</source>
        <translation>レイアウト</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Shoot setup</source>
        <translation>撮影設定</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Force 360° panorama</source>
        <translation>360° パノラマとして扱う</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Overlapping</source>
        <translation>重なり</translation>
    </message>
    <message>
        <location line="+7"/>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <location line="+33"/>
        <source>Stack</source>
        <translation>スタック</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Detect links in:</source>
        <translation>リンクの検出対象:</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>The reference level</source>
        <translation>基準レベル</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>All stack levels</source>
        <translation>スタックのすべてのレベル</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>For a stack:</source>
        <translation>スタック内:</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Use hard links</source>
        <translation>固定リンクを使用</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Detect control points</source>
        <translation>コントロールポイントを検出</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Detection options</source>
        <translation>検出オプション</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Auto detection</source>
        <translation>自動検出</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Clean wrong link</source>
        <translation>誤ったリンクを削除</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Skip optimization</source>
        <translation>最適化を省略</translation>
    </message>
    <message>
        <location line="+24"/>
        <source>Preview</source>
        <translation>プレビュー</translation>
    </message>
    <message>
        <location line="+25"/>
        <source>Zoom</source>
        <translation>ズーム</translation>
    </message>
</context>
<context>
    <name>UIWPMerlinClass</name>
    <message>
        <location filename="../../pages/UIWPMerlin.ui" line="+20"/>
        <source>Papywizard panohead control software</source>
        <translation>Papywizard パノラマヘッド制御ソフトウェア</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Papywizard import</source>
        <translation>Papywizard のインポート</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>&lt;a href=&quot;https://zelmo.example/panohead/heads/papywizard&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#DCDCDC;&quot;&gt;Papywizard&lt;/span&gt;&lt;/a&gt; is a free project to drive Merlin/Orion panorama heads. The XML file format is open and used by a wide range of motorized panorama heads.</source>
        <translation>&lt;a href=&quot;https://zelmo.example/panohead/heads/papywizard&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#DCDCDC;&quot;&gt;Papywizard&lt;/span&gt;&lt;/a&gt; は Merlin/Orion パノラマヘッドを制御するフリーのプロジェクトです。その XML ファイル形式はオープンで、多くの電動パノラマヘッドで使われています。</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>General</source>
        <translation>全般</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>XML:</source>
        <translation>XML:</translation>
    </message>
    <message>
        <location line="+10"/>
        <location line="+125"/>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <location line="-112"/>
        <source>Reset</source>
        <translation>リセット</translation>
    </message>
    <message>
        <location line="+7"/>
        <location line="+125"/>
        <source>Number of images:</source>
        <translation>画像の数:</translation>
    </message>
    <message>
        <location line="-118"/>
        <location line="+42"/>
        <location line="+14"/>
        <location line="+14"/>
        <location line="+14"/>
        <location line="+41"/>
        <location line="+21"/>
        <source>N/A</source>
        <translation>該当なし</translation>
    </message>
    <message>
        <location line="-111"/>
        <source>Yaw:</source>
        <translation>ヨー:</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Pitch:</source>
        <translation>ピッチ:</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Bracketing:</source>
        <translation>ブラケット:</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>XML focal:</source>
        <translation>XML の焦点距離:</translation>
    </message>
    <message>
        <location line="+34"/>
        <source>Images:</source>
        <translation>画像:</translation>
    </message>
    <message>
        <location line="+28"/>
        <source>Image focal:</source>
        <translation>画像の焦点距離:</translation>
    </message>
    <message>
        <location line="+38"/>
        <source>Shoot setup</source>
        <translation>撮影設定</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Inverse Y coordinates</source>
        <translation>Y 座標を反転</translation>
    </message>
    <message>
        <location line="+50"/>
        <source>Focal length:</source>
        <translation>焦点距離:</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Lens Type:</source>
        <translation>レンズの種類:</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Use XML information</source>
        <translation>XML の情報を使用</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Use image information</source>
        <translation>画像の情報を使用</translation>
    </message>
    <message>
        <location line="+36"/>
        <source>Stack</source>
        <translation>スタック</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Detect links in:</source>
        <translation>リンクの検出対象:</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>The reference level</source>
        <translation>基準レベル</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>All stack levels</source>
        <translation>スタックのすべてのレベル</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>For a stack:</source>
        <translation>スタック内:</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Use hard links</source>
        <translation>固定リンクを使用</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Detect control points</source>
        <translation>コントロールポイントを検出</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Detection options</source>
        <translation>検出オプション</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Auto detection</source>
        <translation>自動検出</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Clean wrong link</source>
        <translation>誤ったリンクを削除</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Skip optimization</source>
        <translation>最適化を省略</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Use recorded location</source>
        <translation>記録された位置を使用</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Header details</source>
        <translation>ヘッダーの詳細</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Title:</source>
        <translation>タイトル:</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>GPS:</source>
        <translation>GPS:</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Comment:</source>
        <translation>コメント:</translation>
    </message>
    <message>
        <location line="+27"/>
        <source>Preview</source>
        <translation>プレビュー</translation>
    </message>
    <message>
        <location line="+25"/>
        <source>Zoom</source>
        <translation>ズーム</translation>
    </message>
</context>
<context>
    <name>UIWPPage</name>
    <message>
        <location filename="../../pages/UIWPPage.cpp" line="+90"/>
        <source>Standard</source>
        <translation>標準</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Fisheye</source>
        <translation>魚眼</translation>
    </message>
    <message>
        <location line="+76"/>
        <source>All Files (*.*)</source>
        <translation>すべてのファイル (*.*)</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Select images</source>
        <translation>画像を選択</translation>
    </message>
</context>
<context>
    <name>UIWPVRDrive2Class</name>
    <message>
        <location filename="../../pages/UIWPVRDrive2.ui" line="+20"/>
        <source>VR Drive II import plugin</source>
        <translation>VR Drive II インポートプラグイン</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>VR Drive 2</source>
        <translation>VR Drive 2</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>The &lt;a href=&quot;https://zelmo.example/panohead/heads/vrdrive2&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#DCDCDC;&quot;&gt;VR Drive 2&lt;/span&gt;&lt;/a&gt; motorized panoramic head writes its shooting as an XML preset; its bracketed shots become HDR-ready stacks.</source>
        <translation>電動パノラマヘッド &lt;a href=&quot;https://zelmo.example/panohead/heads/vrdrive2&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#DCDCDC;&quot;&gt;VR Drive 2&lt;/span&gt;&lt;/a&gt; は撮影内容を XML プリセットとして書き出します。ブラケット撮影したショットは HDR 用のスタックになります。</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>General</source>
        <translation>全般</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Images:</source>
        <translation>画像:</translation>
    </message>
    <message>
        <location line="+14"/>
        <location line="+58"/>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <location line="-45"/>
        <location line="+65"/>
        <source>Number of images:</source>
        <translation>画像の数:</translation>
    </message>
    <message>
        <location line="-58"/>
        <location line="+14"/>
        <location line="+51"/>
        <location line="+14"/>
        <location line="+14"/>
        <location line="+14"/>
        <location line="+14"/>
        <source>N/A</source>
        <translation>該当なし</translation>
    </message>
    <message>
        <location line="-114"/>
        <source>Image focal:</source>
        <translation>画像の焦点距離:</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>XML:</source>
        <translation>XML:</translation>
    </message>
    <message>
        <location line="+23"/>
        <source>Reset</source>
        <translation>リセット</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Yaw:</source>
        <translation>ヨー:</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Pitch:</source>
        <translation>ピッチ:</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Bracketing:</source>
        <translation>ブラケット:</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>XML focal:</source>
        <translation>XML の焦点距離:</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Output:</source>
        <translation>出力:</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>8-bits / 16-bits tonemapped</source>
        <translation>8/16 ビット (トーンマップ)</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>32-bits HDR radiance</source>
        <translation>32 ビット HDR Radiance</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>TextLabel</source>
        <translation>TextLabel</translation>
    </message>
    <message>
        <location line="+24"/>
        <source>Shoot setup</source>
        <translation>撮影設定</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Inverse Y coordinates</source>
        <translation>Y 座標を反転</translation>
    </message>
    <message>
        <location line="+50"/>
        <source>Focal length:</source>
        <translation>焦点距離:</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Lens Type:</source>
        <translation>レンズの種類:</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Use XML information</source>
        <translation>XML の情報を使用</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Use image information</source>
        <translation>画像の情報を使用</translation>
    </message>
    <message>
        <location line="+36"/>
        <source>Stack</source>
        <translation>スタック</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Detect links in:</source>
        <translation>リンクの検出対象:</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>The reference level</source>
        <translation>基準レベル</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>All stack levels</source>
        <translation>スタックのすべてのレベル</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>For a stack:</source>
        <translation>スタック内:</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Use hard links</source>
        <translation>固定リンクを使用</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Detect control points</source>
        <translation>コントロールポイントを検出</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Detection options</source>
        <translation>検出オプション</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Auto detection</source>
        <translation>自動検出</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Clean wrong link</source>
        <translation>誤ったリンクを削除</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Skip optimization</source>
        <translation>最適化を省略</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Use recorded location</source>
        <translation>記録された位置を使用</translation>
    </message>
    <message>
        <location line="+24"/>
        <source>Preview</source>
        <translation>プレビュー</translation>
    </message>
    <message>
        <location line="+25"/>
        <source>Zoom</source>
        <translation>ズーム</translation>
    </message>
</context>
<context>
    <name>UIWPXmlPage</name>
    <message>
        <location filename="../../pages/UIWPXmlPage.cpp" line="+102"/>
        <source>All Files (*.*)</source>
        <translation>すべてのファイル (*.*)</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Select the preset file and/or images</source>
        <translation>プリセットファイルと画像のどちらかまたは両方を選択</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>All Files (*.*);;XML files (*.xml)</source>
        <translation>すべてのファイル (*.*);;XML ファイル (*.xml)</translation>
    </message>
    <message>
        <location line="+154"/>
        <location line="+2"/>
        <location line="+3"/>
        <location line="+2"/>
        <location line="+5"/>
        <location line="+4"/>
        <source>N/A</source>
        <translation>該当なし</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Bracketing used in XML, should be multiple of that number</source>
        <translation>XML でブラケット撮影が使われています。画像の数はその枚数の倍数にしてください</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Not the same as in XML fil</source>
        <translation>XML ファイルと一致しません</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Focal Length difference between EXIF and XML</source>
        <translation>EXIF と XML で焦点距離が異なります</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Focal length difference between EXIF and XML</source>
        <translation>EXIF と XML で焦点距離が異なります</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Lens type difference between EXIF and XML</source>
        <translation>EXIF と XML でレンズの種類が異なります</translation>
    </message>
    <message>
        <location line="+20"/>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Papywizard XML has bracketing and the number of images isn&apos;t a multiple of this number of brackets.</source>
        <translation>Papywizard の XML にはブラケット撮影が含まれていますが、画像の数が 1 回のブラケットの枚数の倍数ではありません。</translation>
    </message>
</context>
<context>
    <name>ZClaussImport</name>
    <message>
        <location filename="../ZImportDescriptor.h" line="+28"/>
        <source>Clauss Rodeon import plugin</source>
        <translation>Clauss Rodeon インポートプラグイン</translation>
    </message>
</context>
<context>
    <name>ZGigapanImport</name>
    <message>
        <location line="+9"/>
        <source>Gigapan import plugin</source>
        <translation>Gigapan インポートプラグイン</translation>
    </message>
</context>
<context>
    <name>ZMerlinImport</name>
    <message>
        <location line="+9"/>
        <source>Papywizard XML import plugin</source>
        <translation>Papywizard XML インポートプラグイン</translation>
    </message>
</context>
<context>
    <name>ZVRDrive2Import</name>
    <message>
        <location line="+9"/>
        <source>VRDrive2 XML import plugin</source>
        <translation>VRDrive2 XML インポートプラグイン</translation>
    </message>
</context>
</TS>
