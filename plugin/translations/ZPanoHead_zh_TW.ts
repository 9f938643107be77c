<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW">
<context>
    <name>Library</name>
    <message>
        <location filename="../Library.cpp" line="+83"/>
        <source>Comment</source>
        <translation>備註</translation>
    </message>
</context>
<context>
    <name>UIWPClauss</name>
    <message>
        <location filename="../../pages/UIWPClauss.cpp" line="+81"/>
        <source>Error</source>
        <translation>錯誤</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Error parse file:%1</source>
        <translation>剖析檔案時發生錯誤：%1</translation>
    </message>
    <message>
        <location line="+33"/>
        <source>Select the preset file and/or images</source>
        <translation>選擇預設檔案和/或影像</translation>
    </message>
    <message>
        <location line="+30"/>
        <location line="+2"/>
        <source>N/A</source>
        <translation>無</translation>
    </message>
</context>
<context>
    <name>UIWPClaussClass</name>
    <message>
        <location filename="../../pages/UIWPClauss.ui" line="+20"/>
        <source>Clauss panohead</source>
        <translation>Clauss 全景雲台</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Clauss panohead import</source>
        <translation>從 Clauss 全景雲台匯入</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>&lt;a href=&quot;https://zelmo.example/panohead/heads/clauss&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#DCDCDC;&quot;&gt;Clauss&lt;/span&gt;&lt;/a&gt; provides special equipment for panoramic photography and VR applications.</source>
        <translation>&lt;a href=&quot;https://zelmo.example/panohead/heads/clauss&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#DCDCDC;&quot;&gt;Clauss&lt;/span&gt;&lt;/a&gt; 提供用於全景攝影和 VR 應用的專業設備。</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>General</source>
        <translation>一般</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Script file:</source>
        <translation>指令碼檔案：</translation>
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
        <translation>重設</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Number of shoot:</source>
        <translation>拍攝數量：</translation>
    </message>
    <message>
        <location line="+7"/>
        <location line="+35"/>
        <location line="+14"/>
        <location line="+48"/>
        <source>N/A</source>
        <translation>無</translation>
    </message>
    <message>
        <location line="-69"/>
        <source>Theta:</source>
        <translation>θ：</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Phi:</source>
        <translation>φ：</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Inverse Y coordinates</source>
        <translation>反轉 Y 座標</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Images:</source>
        <translation>影像：</translation>
    </message>
    <message>
        <location line="+27"/>
        <source>Number of image:</source>
        <translation>影像數量：</translation>
    </message>
    <message>
        <location line="+28"/>
        <source>Options</source>
        <translation>選項</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Auto detection</source>
        <translation>自動偵測</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Clean wrong link</source>
        <translation>清除錯誤連結</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Skip optimization</source>
        <translation>略過最佳化</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Guided optimization</source>
        <translation>引導式最佳化</translation>
    </message>
    <message>
        <location line="+24"/>
        <source>Preview</source>
        <translation>預覽</translation>
    </message>
    <message>
        <location line="+25"/>
        <source>Zoom</source>
        <translation>縮放</translation>
    </message>
</context>
<context>
    <name>UIWPGigapan</name>
    <message>
        <location filename="../../pages/UIWPGigapan.cpp" line="+114"/>
        <source>images in </source>
        <translation>張影像，分為 </translation>
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
        <translation>Gigapan 全景匯入</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>&lt;a href=&quot;https://zelmo.example/panohead/heads/gigapan&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#DCDCDC;&quot;&gt;Gigapan&lt;/span&gt;&lt;/a&gt; allows users to upload, share, and explore brilliant gigapixel+ panoramas from around the globe.</source>
        <translation>&lt;a href=&quot;https://zelmo.example/panohead/heads/gigapan&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#DCDCDC;&quot;&gt;Gigapan&lt;/span&gt;&lt;/a&gt; 讓使用者上傳、分享並探索來自全球各地的精彩十億像素級全景圖。</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>General</source>
        <translation>一般</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Images :</source>
        <translation>影像：</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Reset</source>
        <translation>重設</translation>
    </message>
    <message>
        <location line="+9"/>
        <source># Images in</source>
        <translation># 張影像，分為</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>rows and</source>
        <translation>列和</translation>
    </message>
    <message>
        <location line="+23"/>
        <source>columns.</source>
        <translation>欄。</translation>
    </message>
    <message>
        <location line="+22"/>
        <source>Ignore N files </source>
        <translation>忽略的檔案數 </translation>
    </message>
    <message>
        <location line="+20"/>
        <source>Nb image per location ( bracketing )</source>
        <translation>每個位置的影像數（包圍曝光）</translation>
    </message>
    <message>
        <location line="+37"/>
        <source>Shoot layout</source>
        <translation>拍攝配置</translation>
    </message>
    <message>
        <location line="+34"/>
        <source>Columns: to left</source>
        <translation>按欄：向左</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Columns (default)</source>
        <translation>按欄（預設）</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Rows: upward</source>
        <translation>按列：向上</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Rows: downward</source>
        <translation>按列：向下</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Layout</source>
        <translation>配置</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Shoot setup</source>
        <translation>拍攝設定</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Force 360° panorama</source>
        <translation>強制為 360° 全景</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Overlapping</source>
        <translation>重疊</translation>
    </message>
    <message>
        <location line="+7"/>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <location line="+33"/>
        <source>Stack</source>
        <translation>堆疊</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Detect links in:</source>
        <translation>偵測連結的範圍：</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>The reference level</source>
        <translation>參考層級</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>All stack levels</source>
        <translation>堆疊的所有層級</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>For a stack:</source>
        <translation>堆疊內部：</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Use hard links</source>
        <translation>使用固定連結</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Detect control points</source>
        <translation>偵測控制點</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Detection options</source>
        <translation>偵測選項</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Auto detection</source>
        <translation>自動偵測</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Clean wrong link</source>
        <translation>清除錯誤連結</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Skip optimization</source>
        <translation>略過最佳化</translation>
    </message>
    <message>
        <location line="+24"/>
        <source>Preview</source>
        <translation>預覽</translation>
    </message>
    <message>
        <location line="+25"/>
        <source>Zoom</source>
        <translation>縮放</translation>
    </message>
</context>
<context>
    <name>UIWPMerlinClass</name>
    <message>
        <location filename="../../pages/UIWPMerlin.ui" line="+20"/>
        <source>Papywizard panohead control software</source>
        <translation>Papywizard 全景雲台控制軟體</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Papywizard import</source>
        <translation>Papywizard 匯入</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>&lt;a href=&quot;https://zelmo.example/panohead/heads/papywizard&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#DCDCDC;&quot;&gt;Papywizard&lt;/span&gt;&lt;/a&gt; is a free project to drive Merlin/Orion panorama heads. The XML file format is open and used by a wide range of motorized panorama heads.</source>
        <translation>&lt;a href=&quot;https://zelmo.example/panohead/heads/papywizard&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#DCDCDC;&quot;&gt;Papywizard&lt;/span&gt;&lt;/a&gt; 是一個用於驅動 Merlin/Orion 全景雲台的自由專案。其 XML 檔案格式是開放的，被眾多電動全景雲台採用。</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>General</source>
        <translation>一般</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>XML:</source>
        <translation>XML：</translation>
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
        <translation>重設</translation>
    </message>
    <message>
        <location line="+7"/>
        <location line="+125"/>
        <source>Number of images:</source>
        <translation>影像數量：</translation>
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
        <translation>無</translation>
    </message>
    <message>
        <location line="-111"/>
        <source>Yaw:</source>
        <translation>偏航：</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Pitch:</source>
        <translation>俯仰：</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Bracketing:</source>
        <translation>包圍曝光：</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>XML focal:</source>
        <translation>XML 焦距：</translation>
    </message>
    <message>
        <location line="+34"/>
        <source>Images:</source>
        <translation>影像：</translation>
    </message>
    <message>
        <location line="+28"/>
        <source>Image focal:</source>
        <translation>影像焦距：</translation>
    </message>
    <message>
        <location line="+38"/>
        <source>Shoot setup</source>
        <translation>拍攝設定</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Inverse Y coordinates</source>
        <translation>反轉 Y 座標</translation>
    </message>
    <message>
        <location line="+50"/>
        <source>Focal length:</source>
        <translation>焦距：</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Lens Type:</source>
        <translation>鏡頭類型：</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Use XML information</source>
        <translation>使用 XML 資訊</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Use image information</source>
        <translation>使用影像資訊</translation>
    </message>
    <message>
        <location line="+36"/>
        <source>Stack</source>
        <translation>堆疊</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Detect links in:</source>
        <translation>偵測連結的範圍：</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>The reference level</source>
        <translation>參考層級</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>All stack levels</source>
        <translation>堆疊的所有層級</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>For a stack:</source>
        <translation>堆疊內部：</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Use hard links</source>
        <translation>使用固定連結</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Detect control points</source>
        <translation>偵測控制點</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Detection options</source>
        <translation>偵測選項</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Auto detection</source>
        <translation>自動偵測</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Clean wrong link</source>
        <translation>清除錯誤連結</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Skip optimization</source>
        <translation>略過最佳化</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Use recorded location</source>
        <translation>使用記錄的位置</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Header details</source>
        <translation>標頭詳細資料</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Title:</source>
        <translation>標題：</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>GPS:</source>
        <translation>GPS：</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Comment:</source>
        <translation>備註：</translation>
    </message>
    <message>
        <location line="+27"/>
        <source>Preview</source>
        <translation>預覽</translation>
    </message>
    <message>
        <location line="+25"/>
        <source>Zoom</source>
        <translation>縮放</translation>
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
        <translation>所有檔案 (*.*)</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Select images</source>
        <translation>選擇影像</translation>
    </message>
</context>
<context>
    <name>UIWPVRDrive2Class</name>
    <message>
        <location filename="../../pages/UIWPVRDrive2.ui" line="+20"/>
        <source>VR Drive II import plugin</source>
        <translation>VR Drive II 匯入外掛程式</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>VR Drive 2</source>
        <translation>VR Drive 2</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>The &lt;a href=&quot;https://zelmo.example/panohead/heads/vrdrive2&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#DCDCDC;&quot;&gt;VR Drive 2&lt;/span&gt;&lt;/a&gt; motorized panoramic head writes its shooting as an XML preset; its bracketed shots become HDR-ready stacks.</source>
        <translation>電動全景雲台 &lt;a href=&quot;https://zelmo.example/panohead/heads/vrdrive2&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#DCDCDC;&quot;&gt;VR Drive 2&lt;/span&gt;&lt;/a&gt; 將拍攝內容寫成 XML 預設；其包圍曝光的照片會成為可用於 HDR 的堆疊。</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>General</source>
        <translation>一般</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Images:</source>
        <translation>影像：</translation>
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
        <translation>影像數量：</translation>
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
        <translation>無</translation>
    </message>
    <message>
        <location line="-114"/>
        <source>Image focal:</source>
        <translation>影像焦距：</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>XML:</source>
        <translation>XML：</translation>
    </message>
    <message>
        <location line="+23"/>
        <source>Reset</source>
        <translation>重設</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Yaw:</source>
        <translation>偏航：</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Pitch:</source>
        <translation>俯仰：</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Bracketing:</source>
        <translation>包圍曝光：</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>XML focal:</source>
        <translation>XML 焦距：</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Output:</source>
        <translation>輸出：</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>8-bits / 16-bits tonemapped</source>
        <translation>8/16 位元（色調對應）</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>32-bits HDR radiance</source>
        <translation>32 位元 HDR Radiance</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>TextLabel</source>
        <translation>TextLabel</translation>
    </message>
    <message>
        <location line="+24"/>
        <source>Shoot setup</source>
        <translation>拍攝設定</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Inverse Y coordinates</source>
        <translation>反轉 Y 座標</translation>
    </message>
    <message>
        <location line="+50"/>
        <source>Focal length:</source>
        <translation>焦距：</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Lens Type:</source>
        <translation>鏡頭類型：</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Use XML information</source>
        <translation>使用 XML 資訊</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Use image information</source>
        <translation>使用影像資訊</translation>
    </message>
    <message>
        <location line="+36"/>
        <source>Stack</source>
        <translation>堆疊</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Detect links in:</source>
        <translation>偵測連結的範圍：</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>The reference level</source>
        <translation>參考層級</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>All stack levels</source>
        <translation>堆疊的所有層級</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>For a stack:</source>
        <translation>堆疊內部：</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Use hard links</source>
        <translation>使用固定連結</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Detect control points</source>
        <translation>偵測控制點</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Detection options</source>
        <translation>偵測選項</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Auto detection</source>
        <translation>自動偵測</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Clean wrong link</source>
        <translation>清除錯誤連結</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Skip optimization</source>
        <translation>略過最佳化</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Use recorded location</source>
        <translation>使用記錄的位置</translation>
    </message>
    <message>
        <location line="+24"/>
        <source>Preview</source>
        <translation>預覽</translation>
    </message>
    <message>
        <location line="+25"/>
        <source>Zoom</source>
        <translation>縮放</translation>
    </message>
</context>
<context>
    <name>UIWPXmlPage</name>
    <message>
        <location filename="../../pages/UIWPXmlPage.cpp" line="+102"/>
        <source>All Files (*.*)</source>
        <translation>所有檔案 (*.*)</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Select the preset file and/or images</source>
        <translation>選擇預設檔案和/或影像</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>All Files (*.*);;XML files (*.xml)</source>
        <translation>所有檔案 (*.*);;XML 檔案 (*.xml)</translation>
    </message>
    <message>
        <location line="+154"/>
        <location line="+2"/>
        <location line="+3"/>
        <location line="+2"/>
        <location line="+5"/>
        <location line="+4"/>
        <source>N/A</source>
        <translation>無</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Bracketing used in XML, should be multiple of that number</source>
        <translation>XML 使用了包圍曝光，影像數量應為其整數倍</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Not the same as in XML fil</source>
        <translation>與 XML 檔案不一致</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Focal Length difference between EXIF and XML</source>
        <translation>EXIF 與 XML 的焦距不同</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Focal length difference between EXIF and XML</source>
        <translation>EXIF 與 XML 的焦距不同</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Lens type difference between EXIF and XML</source>
        <translation>EXIF 與 XML 的鏡頭類型不同</translation>
    </message>
    <message>
        <location line="+20"/>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Papywizard XML has bracketing and the number of images isn&apos;t a multiple of this number of brackets.</source>
        <translation>Papywizard XML 含有包圍曝光，但影像數量不是每組包圍張數的整數倍。</translation>
    </message>
</context>
<context>
    <name>ZClaussImport</name>
    <message>
        <location filename="../ZImportDescriptor.h" line="+28"/>
        <source>Clauss Rodeon import plugin</source>
        <translation>Clauss Rodeon 匯入外掛程式</translation>
    </message>
</context>
<context>
    <name>ZGigapanImport</name>
    <message>
        <location line="+9"/>
        <source>Gigapan import plugin</source>
        <translation>Gigapan 匯入外掛程式</translation>
    </message>
</context>
<context>
    <name>ZMerlinImport</name>
    <message>
        <location line="+9"/>
        <source>Papywizard XML import plugin</source>
        <translation>Papywizard XML 匯入外掛程式</translation>
    </message>
</context>
<context>
    <name>ZVRDrive2Import</name>
    <message>
        <location line="+9"/>
        <source>VRDrive2 XML import plugin</source>
        <translation>VRDrive2 XML 匯入外掛程式</translation>
    </message>
</context>
</TS>
