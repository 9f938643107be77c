<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>Library</name>
    <message>
        <location filename="../Library.cpp" line="+83"/>
        <source>Comment</source>
        <translation>备注</translation>
    </message>
</context>
<context>
    <name>UIWPClauss</name>
    <message>
        <location filename="../../pages/UIWPClauss.cpp" line="+81"/>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Error parse file:%1</source>
        <translation>解析文件出错：%1</translation>
    </message>
    <message>
        <location line="+33"/>
        <source>Select the preset file and/or images</source>
        <translation>选择预设文件和/或图像</translation>
    </message>
    <message>
        <location line="+30"/>
        <location line="+2"/>
        <source>N/A</source>
        <translation>无</translation>
    </message>
</context>
<context>
    <name>UIWPClaussClass</name>
    <message>
        <location filename="../../pages/UIWPClauss.ui" line="+20"/>
        <source>Clauss panohead</source>
        <translation>Clauss 全景云台</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Clauss panohead import</source>
        <translation>从 Clauss 全景云台导入</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>&lt;a href=&quot;https://zelmo.example/panohead/heads/clauss&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#DCDCDC;&quot;&gt;Clauss&lt;/span&gt;&lt;/a&gt; provides special equipment for panoramic photography and VR applications.</source>
        <translation>&lt;a href=&quot;https://zelmo.example/panohead/heads/clauss&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#DCDCDC;&quot;&gt;Clauss&lt;/span&gt;&lt;/a&gt; 提供用于全景摄影和 VR 应用的专业设备。</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>General</source>
        <translation>常规</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Script file:</source>
        <translation>脚本文件：</translation>
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
        <translation>重置</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Number of shoot:</source>
        <translation>拍摄数量：</translation>
    </message>
    <message>
        <location line="+7"/>
        <location line="+35"/>
        <location line="+14"/>
        <location line="+48"/>
        <source>N/A</source>
        <translation>无</translation>
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
        <translation>反转 Y 坐标</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Images:</source>
        <translation>图像：</translation>
    </message>
    <message>
        <location line="+27"/>
        <source>Number of image:</source>
        <translation>图像数量：</translation>
    </message>
    <message>
        <location line="+28"/>
        <source>Options</source>
        <translation>选项</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Auto detection</source>
        <translation>自动检测</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Clean wrong link</source>
        <translation>清除错误链接</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Skip optimization</source>
        <translation>跳过优化</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Guided optimization</source>
        <translation>引导式优化</translation>
    </message>
    <message>
        <location line="+24"/>
        <source>Preview</source>
        <translation>预览</translation>
    </message>
    <message>
        <location line="+25"/>
        <source>Zoom</source>
        <translation>缩放</translation>
    </message>
</context>
<context>
    <name>UIWPGigapan</name>
    <message>
        <location filename="../../pages/UIWPGigapan.cpp" line="+114"/>
        <source>images in </source>
        <translation>张图像，分为 </translation>
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
        <translation>Gigapan 全景导入</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>&lt;a href=&quot;https://zelmo.example/panohead/heads/gigapan&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#DCDCDC;&quot;&gt;Gigapan&lt;/span&gt;&lt;/a&gt; allows users to upload, share, and explore brilliant gigapixel+ panoramas from around the globe.</source>
        <translation>&lt;a href=&quot;https://zelmo.example/panohead/heads/gigapan&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#DCDCDC;&quot;&gt;Gigapan&lt;/span&gt;&lt;/a&gt; 让用户上传、分享和探索来自全球各地的精彩十亿像素级全景图。</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>General</source>
        <translation>常规</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Images :</source>
        <translation>图像：</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Reset</source>
        <translation>重置</translation>
    </message>
    <message>
        <location line="+9"/>
        <source># Images in</source>
        <translation># 张图像，分为</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>rows and</source>
        <translation>行和</translation>
    </message>
    <message>
        <location line="+23"/>
        <source>columns.</source>
        <translation>列。</translation>
    </message>
    <message>
        <location line="+22"/>
        <source>Ignore N files </source>
        <translation>忽略的文件数 </translation>
    </message>
    <message>
        <location line="+20"/>
        <source>Nb image per location ( bracketing )</source>
        <translation>每个位置的图像数（包围曝光）</translation>
    </message>
    <message>
        <location line="+37"/>
        <source>Shoot layout</source>
        <translation>拍摄布局</translation>
    </message>
    <message>
        <location line="+34"/>
        <source>Columns: to left</source>
        <translation>按列：向左</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Columns (default)</source>
        <translation>按列（默认）</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Rows: upward</source>
        <translation>按行：向上</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Rows: downward</source>
        <translation>按行：向下</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Layout</source>
        <translation>布局</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Shoot setup</source>
        <translation>拍摄设置</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Force 360° panorama</source>
        <translation>强制为 360° 全景</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Overlapping</source>
        <translation>重叠</translation>
    </message>
    <message>
        <location line="+7"/>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <location line="+33"/>
        <source>Stack</source>
        <translation>堆栈</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Detect links in:</source>
        <translation>检测链接的范围：</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>The reference level</source>
        <translation>参考层级</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>All stack levels</source>
        <translation>堆栈的所有层级</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>For a stack:</source>
        <translation>堆栈内部：</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Use hard links</source>
        <translation>使用固定链接</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Detect control points</source>
        <translation>检测控制点</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Detection options</source>
        <translation>检测选项</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Auto detection</source>
        <translation>自动检测</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Clean wrong link</source>
        <translation>清除错误链接</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Skip optimization</source>
        <translation>跳过优化</translation>
    </message>
    <message>
        <location line="+24"/>
        <source>Preview</source>
        <translation>预览</translation>
    </message>
    <message>
        <location line="+25"/>
        <source>Zoom</source>
        <translation>缩放</translation>
    </message>
</context>
<context>
    <name>UIWPMerlinClass</name>
    <message>
        <location filename="../../pages/UIWPMerlin.ui" line="+20"/>
        <source>Papywizard panohead control software</source>
        <translation>Papywizard 全景云台控制软件</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Papywizard import</source>
        <translation>Papywizard 导入</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>&lt;a href=&quot;https://zelmo.example/panohead/heads/papywizard&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#DCDCDC;&quot;&gt;Papywizard&lt;/span&gt;&lt;/a&gt; is a free project to drive Merlin/Orion panorama heads. The XML file format is open and used by a wide range of motorized panorama heads.</source>
        <translation>&lt;a href=&quot;https://zelmo.example/panohead/heads/papywizard&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#DCDCDC;&quot;&gt;Papywizard&lt;/span&gt;&lt;/a&gt; 是一个用于驱动 Merlin/Orion 全景云台的自由项目。其 XML 文件格式是开放的，被众多电动全景云台采用。</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>General</source>
        <translation>常规</translation>
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
        <translation>重置</translation>
    </message>
    <message>
        <location line="+7"/>
        <location line="+125"/>
        <source>Number of images:</source>
        <translation>图像数量：</translation>
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
        <translation>无</translation>
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
        <translation>包围曝光：</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>XML focal:</source>
        <translation>XML 焦距：</translation>
    </message>
    <message>
        <location line="+34"/>
        <source>Images:</source>
        <translation>图像：</translation>
    </message>
    <message>
        <location line="+28"/>
        <source>Image focal:</source>
        <translation>图像焦距：</translation>
    </message>
    <message>
        <location line="+38"/>
        <source>Shoot setup</source>
        <translation>拍摄设置</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Inverse Y coordinates</source>
        <translation>反转 Y 坐标</translation>
    </message>
    <message>
        <location line="+50"/>
        <source>Focal length:</source>
        <translation>焦距：</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Lens Type:</source>
        <translation>镜头类型：</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Use XML information</source>
        <translation>使用 XML 信息</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Use image information</source>
        <translation>使用图像信息</translation>
    </message>
    <message>
        <location line="+36"/>
        <source>Stack</source>
        <translation>堆栈</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Detect links in:</source>
        <translation>检测链接的范围：</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>The reference level</source>
        <translation>参考层级</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>All stack levels</source>
        <translation>堆栈的所有层级</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>For a stack:</source>
        <translation>堆栈内部：</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Use hard links</source>
        <translation>使用固定链接</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Detect control points</source>
        <translation>检测控制点</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Detection options</source>
        <translation>检测选项</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Auto detection</source>
        <translation>自动检测</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Clean wrong link</source>
        <translation>清除错误链接</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Skip optimization</source>
        <translation>跳过优化</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Use recorded location</source>
        <translation>使用记录的位置</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Header details</source>
        <translation>标头详细信息</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Title:</source>
        <translation>标题：</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>GPS:</source>
        <translation>GPS：</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Comment:</source>
        <translation>备注：</translation>
    </message>
    <message>
        <location line="+27"/>
        <source>Preview</source>
        <translation>预览</translation>
    </message>
    <message>
        <location line="+25"/>
        <source>Zoom</source>
        <translation>缩放</translation>
    </message>
</context>
<context>
    <name>UIWPPage</name>
    <message>
        <location filename="../../pages/UIWPPage.cpp" line="+90"/>
        <source>Standard</source>
        <translation>标准</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Fisheye</source>
        <translation>鱼眼</translation>
    </message>
    <message>
        <location line="+76"/>
        <source>All Files (*.*)</source>
        <translation>所有文件 (*.*)</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Select images</source>
        <translation>选择图像</translation>
    </message>
</context>
<context>
    <name>UIWPVRDrive2Class</name>
    <message>
        <location filename="../../pages/UIWPVRDrive2.ui" line="+20"/>
        <source>VR Drive II import plugin</source>
        <translation>VR Drive II 导入插件</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>VR Drive 2</source>
        <translation>VR Drive 2</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>The &lt;a href=&quot;https://zelmo.example/panohead/heads/vrdrive2&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#DCDCDC;&quot;&gt;VR Drive 2&lt;/span&gt;&lt;/a&gt; motorized panoramic head writes its shooting as an XML preset; its bracketed shots become HDR-ready stacks.</source>
        <translation>电动全景云台 &lt;a href=&quot;https://zelmo.example/panohead/heads/vrdrive2&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#DCDCDC;&quot;&gt;VR Drive 2&lt;/span&gt;&lt;/a&gt; 将拍摄内容写成 XML 预设；其包围曝光的照片会成为可用于 HDR 的堆栈。</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>General</source>
        <translation>常规</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Images:</source>
        <translation>图像：</translation>
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
        <translation>图像数量：</translation>
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
        <translation>无</translation>
    </message>
    <message>
        <location line="-114"/>
        <source>Image focal:</source>
        <translation>图像焦距：</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>XML:</source>
        <translation>XML：</translation>
    </message>
    <message>
        <location line="+23"/>
        <source>Reset</source>
        <translation>重置</translation>
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
        <translation>包围曝光：</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>XML focal:</source>
        <translation>XML 焦距：</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Output:</source>
        <translation>输出：</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>8-bits / 16-bits tonemapped</source>
        <translation>8/16 位（色调映射）</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>32-bits HDR radiance</source>
        <translation>32 位 HDR Radiance</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>TextLabel</source>
        <translation>TextLabel</translation>
    </message>
    <message>
        <location line="+24"/>
        <source>Shoot setup</source>
        <translation>拍摄设置</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Inverse Y coordinates</source>
        <translation>反转 Y 坐标</translation>
    </message>
    <message>
        <location line="+50"/>
        <source>Focal length:</source>
        <translation>焦距：</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Lens Type:</source>
        <translation>镜头类型：</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Use XML information</source>
        <translation>使用 XML 信息</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Use image information</source>
        <translation>使用图像信息</translation>
    </message>
    <message>
        <location line="+36"/>
        <source>Stack</source>
        <translation>堆栈</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Detect links in:</source>
        <translation>检测链接的范围：</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>The reference level</source>
        <translation>参考层级</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>All stack levels</source>
        <translation>堆栈的所有层级</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>For a stack:</source>
        <translation>堆栈内部：</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Use hard links</source>
        <translation>使用固定链接</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Detect control points</source>
        <translation>检测控制点</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Detection options</source>
        <translation>检测选项</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Auto detection</source>
        <translation>自动检测</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Clean wrong link</source>
        <translation>清除错误链接</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Skip optimization</source>
        <translation>跳过优化</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Use recorded location</source>
        <translation>使用记录的位置</translation>
    </message>
    <message>
        <location line="+24"/>
        <source>Preview</source>
        <translation>预览</translation>
    </message>
    <message>
        <location line="+25"/>
        <source>Zoom</source>
        <translation>缩放</translation>
    </message>
</context>
<context>
    <name>UIWPXmlPage</name>
    <message>
        <location filename="../../pages/UIWPXmlPage.cpp" line="+102"/>
        <source>All Files (*.*)</source>
        <translation>所有文件 (*.*)</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Select the preset file and/or images</source>
        <translation>选择预设文件和/或图像</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>All Files (*.*);;XML files (*.xml)</source>
        <translation>所有文件 (*.*);;XML 文件 (*.xml)</translation>
    </message>
    <message>
        <location line="+154"/>
        <location line="+2"/>
        <location line="+3"/>
        <location line="+2"/>
        <location line="+5"/>
        <location line="+4"/>
        <source>N/A</source>
        <translation>无</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Bracketing used in XML, should be multiple of that number</source>
        <translation>XML 使用了包围曝光，图像数量应为其整数倍</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Not the same as in XML fil</source>
        <translation>与 XML 文件不一致</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Focal Length difference between EXIF and XML</source>
        <translation>EXIF 与 XML 的焦距不同</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Focal length difference between EXIF and XML</source>
        <translation>EXIF 与 XML 的焦距不同</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Lens type difference between EXIF and XML</source>
        <translation>EXIF 与 XML 的镜头类型不同</translation>
    </message>
    <message>
        <location line="+20"/>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Papywizard XML has bracketing and the number of images isn&apos;t a multiple of this number of brackets.</source>
        <translation>Papywizard XML 含有包围曝光，但图像数量不是每组包围张数的整数倍。</translation>
    </message>
</context>
<context>
    <name>ZClaussImport</name>
    <message>
        <location filename="../ZImportDescriptor.h" line="+28"/>
        <source>Clauss Rodeon import plugin</source>
        <translation>Clauss Rodeon 导入插件</translation>
    </message>
</context>
<context>
    <name>ZGigapanImport</name>
    <message>
        <location line="+9"/>
        <source>Gigapan import plugin</source>
        <translation>Gigapan 导入插件</translation>
    </message>
</context>
<context>
    <name>ZMerlinImport</name>
    <message>
        <location line="+9"/>
        <source>Papywizard XML import plugin</source>
        <translation>Papywizard XML 导入插件</translation>
    </message>
</context>
<context>
    <name>ZVRDrive2Import</name>
    <message>
        <location line="+9"/>
        <source>VRDrive2 XML import plugin</source>
        <translation>VRDrive2 XML 导入插件</translation>
    </message>
</context>
</TS>
