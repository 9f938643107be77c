// Preview of the six faces of a cube map, laid out as a cross, with buttons
// that turn the whole cross by a quarter turn. The host sets `faceSources`
// (front, right, back, left, top, bottom) and reads `rotation`.
import QtQuick 2.5
import QtQuick.Controls 1.4

Item {
    id: root
    property var faceSources: ["", "", "", "", "", ""]
    property int faceSize: 64
    property real turn: 0
    readonly property var faceNames: [qsTr("Front"), qsTr("Right"), qsTr("Back"),
                                      qsTr("Left"), qsTr("Top"), qsTr("Bottom")]
    // Column and row of each face in the cross.
    readonly property var faceCells: [[1, 1], [2, 1], [3, 1], [0, 1], [1, 0], [1, 2]]

    width: faceSize * 4
    height: faceSize * 3 + controls.height

    Item {
        id: cross
        width: root.faceSize * 4
        height: root.faceSize * 3
        rotation: root.turn
        Behavior on rotation { NumberAnimation { duration: 150 } }

        Repeater {
            model: 6
            Rectangle {
                x: root.faceCells[index][0] * root.faceSize
                y: root.faceCells[index][1] * root.faceSize
                width: root.faceSize
                height: root.faceSize
                border.color: "#404040"
                color: "#e8e8e8"
                Image {
                    anchors.fill: parent
                    anchors.margins: 1
                    source: root.faceSources[index]
                    fillMode: Image.PreserveAspectCrop
                }
                Text {
                    anchors.centerIn: parent
                    text: root.faceNames[index]
                    visible: root.faceSources[index] === ""
                }
            }
        }
    }

    Row {
        id: controls
        anchors.top: cross.bottom
        anchors.horizontalCenter: parent.horizontalCenter
        spacing: 4
        Button {
            text: qsTr("Rotate left")
            onClicked: root.turn -= 90
        }
        Button {
            text: qsTr("Rotate right")
            onClicked: root.turn += 90
        }
    }
}
