#ifndef EXCEPTION_TYPE_DEF_H
#define EXCEPTION_TYPE_DEF_H

#include "exception/ExceptionType.h"

// The toolkit's kinds of error, of which its vectors raise the first two. Numbers are never reused, so that old logs
// stay readable. Quirk: the texts keep their spaces and misspellings.

const ExceptionType VECTEUR_SIZE_INCORRECT(1, " les vecteurs sont de la mauvaise taille pour cette action ",
                                           "vecteurSizeIncorect");
const ExceptionType VECTEUR_READ_VALUE_INCORRECT(2, " la position du vecteur n'existe pas (segmentation fault) ",
                                                 "vecteurReadValueIncorrect");
const ExceptionType CAN_T_LOAD_SHADERS(3, "les shader n'ont pas pu etre charge", "cantLoadSahder");
const ExceptionType ZERO_MASS(4, "La masse de l'objet est nul", "zeroMass");
const ExceptionType DIVISION_BY_ZERO(5, "division par zero", "divisionByZero");
const ExceptionType TRIANGLE_READ_VALUE_INCORRECT(6, " la position dans triangle n'existe pas (segmentation fault) ",
                                                  "triangleReadValueIncorrect");
const ExceptionType
    TRIANGLE_MODEL_READ_VALUE_INCORRECT(7, " la position du triangle dans le model n'existe pas (segmentation fault) ",
                                        "triangleModelReadValueIncorrect");
const ExceptionType MESH_INCORECT_SIZE_OF_TEXTURE_POINT(
    8,
    " taille de la texture ne correspond pas au nombre de points (2 pt dans la texture pour 3 dans les "
    "vertices) ",
    "MeshIncorectSizeOfTexturePoint");
const ExceptionType INTERACTION_TEMPLATE_SIZE_INCORRECT(9, " taille incorrecte pour InteractionFixeNumberOfObject ",
                                                        "InteractionTemplateSizeIncorrect");
const ExceptionType GAME_PLAYER_SIZE_INCORRECT(10, " taille incorrecte pour le nombre de joueur dans le jeu ",
                                               "GAME_PLAYER_SIZE_INCORRECT");
const ExceptionType DATA_POS_RADIUS_CIRCLE_TRIANGLE_SIZE_INCORRECT(
    11,
    "taille incorrect dans le sotckage des position et rayon des cercles ciconscrit "
    "(ModelMeshAndTexture) ",
    "DATA_POS_RADIUS_CIRCLE_TRIANGLE_SIZE_INCORRECT");

#endif
